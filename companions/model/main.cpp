#include "program.h"

#include <iostream>

int main(int argc, char** argv) {
  const model::Messages messages{std::cout, std::cerr};
  return model::RunProgram({argv + (argc > 0 ? 1 : 0), argv + argc}, {}, messages);
}
