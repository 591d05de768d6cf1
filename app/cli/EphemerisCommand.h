// The command that tabulates the positions of the bodies.
#pragma once

#include "app/cli/Command.h"
#include "app/cli/JsonValues.h"

namespace kestrav::cli
{

class EphemerisCommand : public Command
{
public:
    EphemerisCommand();
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const override;
};

/// Adds the Julian day of a moment and its date and hour on a clock that is `clockOffset` hours
/// before Universal Time.
void addMoment(Json& object, double julianDay, double clockOffset);

} // namespace kestrav::cli
