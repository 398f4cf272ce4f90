// What a console program asks of the system.
#pragma once

namespace vorlane {

bool StandardOutputIsTerminal();
bool StandardErrorIsTerminal();

// From here on SIGINT and SIGTERM don't end the program: they are noted, and the program ends its
// work in good order.
void CatchStopSignals();
bool StopSignalled();

}  // namespace vorlane
