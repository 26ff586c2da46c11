# find_package(qb07): the target qb07::qb07.
include("${CMAKE_CURRENT_LIST_DIR}/qb07-targets.cmake")
