// The signals that ask a program to end, as something to wait for.
#pragma once

namespace vorlane {

// From here on SIGTERM, SIGINT and SIGHUP don't end the program: each makes the descriptor readable
// that this returns. -1 if there is none; the signals then end the program as ever. Once in a
// program.
int OpenStopSignals();

// Takes what has come, so that the descriptor waits again.
void DrainStopSignals(int descriptor);

}  // namespace vorlane
