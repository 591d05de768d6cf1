// The commands that look places and their time zones up.
#pragma once

#include "app/cli/Command.h"

namespace kestrav::cli
{

/// The places of a name, the best first.
class FindPlacesCommand : public Command
{
public:
    FindPlacesCommand();
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const override;
};

/// Zone and saving time of a place at a local moment.
class PlaceZoneCommand : public Command
{
public:
    PlaceZoneCommand();
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const override;
};

} // namespace kestrav::cli
