// finestre/principale.cpp - the tests of the windows in one application.
#include "app/qt/applicazione.h"
#include "app/qt/lingua.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  Applicazione programma(argc, argv);
  PreparaLingua();
  return RUN_ALL_TESTS();
}
