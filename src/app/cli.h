#pragma once
// The command line: the engine headless, for scripts, batch work and tests.

namespace tf::cli {

// True when the arguments ask for the command line rather than the desktop program.
bool wantsCommandLine(int argc, char **argv);

// Runs a sub-command. Exit codes: 0 success, 1 the work failed, 2 bad usage.
int run(int argc, char **argv);

} // namespace tf::cli
