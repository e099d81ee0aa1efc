#pragma once

#include "app/CommandLine.h"

namespace fidaleon::app {

/// Connects a folder to the parish that a server has, or makes one there. The answer is the exit
/// code.
int connectServer(const CommandLine& line);
/// Moves a parish to another folder, into a file or onto a server. Ctrl+C gives it up; the same
/// command goes on with it.
/// The script of an administrator on the standard output.
int printScript(const CommandLine& line);
int moveToServer(const CommandLine& line);

}  // namespace fidaleon::app
