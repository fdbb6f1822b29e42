#pragma once

#include <optional>
#include <string>

namespace mavCycEd::host {

/// How the program ends.
enum ExitCode { Fine = 0, WrongUsage = 1, UnusableFile = 2, NotWritten = 3 };

/// What the command line asks for; empty texts: it does not.
struct Options {
  std::string catalogue;
  std::string configuration;
  std::string cycle;
  std::string out;
  std::string screenshot;
  bool ignoreHidden = false;
  bool quit = false;
};

/// Reads the command line. A result is the exit code of a program that has nothing more to do: help and the version
/// were written to standard output, or what is wrong to standard error.
std::optional<int> readCommandLine(int argc, const char* const* argv, Options& options);

}  // namespace mavCycEd::host
