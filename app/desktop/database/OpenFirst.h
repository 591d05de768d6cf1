// Which database the window begins with.
#pragma once

namespace kestrav::desktop
{

struct ProgramOptions;
class TKSVform1;

/// Opens the database of the command line, else the last one, else "My Charts.ksc" of the user's
/// documents, else the sample charts, and shows the chart that the options name, the last one or
/// the first. Chart files of other programs and yoga files of the command line are taken in as
/// well. What cannot be opened is told, and the next one is tried.
void openFirst(TKSVform1& window, const ProgramOptions& options);

} // namespace kestrav::desktop
