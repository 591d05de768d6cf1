// How the window's program begins and ends.
#pragma once

#include "app/desktop/start/ProgramOptions.h"

namespace kestrav::desktop
{

/// Runs the program with its window until it is left. Returns the exit status: 0 also when the
/// program data file is missing, 1 when it is damaged or a picture could not be made.
int runWindow(int& count, char** words, const ProgramOptions& options);

} // namespace kestrav::desktop
