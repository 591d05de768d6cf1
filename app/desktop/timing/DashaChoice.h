// The dasha system that the panels of time show.
#pragma once

#include "app/desktop/shell/Workspace.h"
#include "core/Result.h"
#include "timing/Dasha.h"

#include <QObject>

#include <optional>

namespace kestrav::desktop
{

/// The system of the settings until another one is chosen for looking; the settings stay as they
/// are. One object belongs to a workspace, so that tree, life bar and steps show the same system.
class DashaChoice : public QObject
{
    Q_OBJECT

public:
    static DashaChoice& of(Workspace& workspace);

    [[nodiscard]] int system() const;
    [[nodiscard]] bool isStandard() const;
    void choose(int system);
    /// Puts the chosen system into the settings.
    void makeStandard();

    /// The options of the settings with the chosen system. True solar years are left where the
    /// user has moved the Sun of the shown chart.
    [[nodiscard]] timing::DashaOptions options(const ChartPointer& chart) const;
    /// The dasha of a chart; the program data must outlive it.
    [[nodiscard]] core::Result<timing::Dasha> dashaOf(const ChartPointer& chart) const;

signals:
    void changed();

private:
    explicit DashaChoice(Workspace& workspace);

    Workspace& workspace_;
    std::optional<int> chosen_;
};

} // namespace kestrav::desktop
