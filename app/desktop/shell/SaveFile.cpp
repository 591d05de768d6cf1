#include "app/desktop/shell/SaveFile.h"

#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/TMessages.h"
#include "app/desktop/shell/Workspace.h"
#include "core/Files.h"
#include "data/DatabaseMessages.h"

#include <cstdint>
#include <filesystem>
#include <span>
#include <system_error>

namespace kestrav::desktop
{

bool saveBytes(std::string_view bytes, const QString& file, Workspace& workspace)
{
    const std::filesystem::path path = toPath(file);
    std::error_code problem;
    if (std::filesystem::exists(path, problem) &&
        TMessages().show(data::kWarningCaption, data::kOverwrite, core::Buttons::YesNo) !=
            core::Answer::Yes) {
        return false;
    }
    const std::span<const std::uint8_t> raw(reinterpret_cast<const std::uint8_t*>(bytes.data()),
                                            bytes.size());
    const auto written = core::writeFileSafely(path, raw);
    if (written) {
        workspace.tell(QObject::tr("Saved %1").arg(file));
    } else {
        workspace.tellProblem(
            QObject::tr("%1 could not be saved: %2").arg(file, toQt(written.error().text())));
    }
    return written.ok();
}

} // namespace kestrav::desktop
