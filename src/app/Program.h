#pragma once

namespace fidaleon::app {

/// The whole program behind its command line. The answer is the exit code: 0 all well, 1 something
/// did not do what it should, 2 a wrong command line.
int runProgram(int argc, char** argv);

}  // namespace fidaleon::app
