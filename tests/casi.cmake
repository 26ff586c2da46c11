# One test a folder of tests/casi, and the test of the runner itself.
if(TARGET qb07-batch)
  file(GLOB QB07_CASI CONFIGURE_DEPENDS LIST_DIRECTORIES true ${CMAKE_CURRENT_LIST_DIR}/casi/*)
  foreach(caso ${QB07_CASI})
    if(EXISTS ${caso}/programmi AND NOT QB07_CAMPIONI)
      continue()
    endif()
    if(IS_DIRECTORY ${caso}/atteso)
      get_filename_component(nome ${caso} NAME)
      add_test(NAME caso_${nome} COMMAND ${CMAKE_CURRENT_LIST_DIR}/corredo/esegui-caso $<TARGET_FILE:qb07-batch> ${caso})
      set_tests_properties(caso_${nome} PROPERTIES SKIP_RETURN_CODE 77 TIMEOUT 120)
    endif()
  endforeach()
  # The drawings in two CAD readers, where one is installed.
  add_test(NAME prova_dxf COMMAND ${CMAKE_CURRENT_LIST_DIR}/corredo/prova-dxf $<TARGET_FILE:qb07-batch>)
  set_tests_properties(prova_dxf PROPERTIES SKIP_RETURN_CODE 77 TIMEOUT 300)
  # Large files under a bound of memory.
  add_test(NAME prova_memoria COMMAND ${CMAKE_CURRENT_LIST_DIR}/corredo/prova-memoria $<TARGET_FILE:qb07-batch>)
  set_tests_properties(prova_memoria PROPERTIES SKIP_RETURN_CODE 77 TIMEOUT 300)
  add_test(NAME corredo_esegui_caso COMMAND ${CMAKE_CURRENT_LIST_DIR}/corredo/prova-esegui-caso $<TARGET_FILE:qb07-batch>)
  # What is installed works from where it lies, and a release is hardened.
  set(QB07_PROTETTA)
  if(CMAKE_BUILD_TYPE MATCHES "^(Release|RelWithDebInfo)$" AND NOT QB07_SANITIZE AND CMAKE_SYSTEM_NAME STREQUAL "Linux")
    set(QB07_PROTETTA ${CMAKE_SYSTEM_PROCESSOR})
  endif()
  add_test(NAME prova_installazione
    COMMAND ${CMAKE_CURRENT_LIST_DIR}/corredo/prova-installazione ${CMAKE_COMMAND} ${CMAKE_BINARY_DIR} ${QB07_PROTETTA})
  set_tests_properties(prova_installazione PROPERTIES TIMEOUT 300)
endif()
