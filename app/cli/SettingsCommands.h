// The commands that show and change the stored settings.
#pragma once

#include "app/cli/Command.h"

namespace kestrav::cli
{

class ListSettingsCommand : public Command
{
public:
    ListSettingsCommand();
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const override;
};

class GetSettingCommand : public Command
{
public:
    GetSettingCommand();
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const override;
};

class SetSettingCommand : public Command
{
public:
    SetSettingCommand();
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const override;
};

class ResetSettingsCommand : public Command
{
public:
    ResetSettingsCommand();
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const override;
};

} // namespace kestrav::cli
