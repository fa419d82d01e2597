// The end of a program whose result is what it printed: a listing that nobody has received is no success.
#pragma once

#include <iostream>

// Returns the exit status of the program, after a message if standard output is closed or its disk is full.
inline int end_of_output(const char *program, int status) {
  if (std::cout.flush()) {
    return status;
  }
  std::cerr << program << ": standard output cannot be written\n";
  return 1;
}
