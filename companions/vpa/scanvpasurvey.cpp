#include <iostream>

#include "programs.h"

int main(int argc, char** argv) {
  return vpa::RunScanVpaSurvey({argv + (argc > 0 ? 1 : 0), argv + argc}, std::cout, std::cerr);
}
