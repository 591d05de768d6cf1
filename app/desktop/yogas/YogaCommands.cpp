#include "app/desktop/yogas/YogaCommands.h"

#include "app/desktop/research/YogaFindings.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/TMessages.h"
#include "app/desktop/shell/Workspace.h"
#include "app/desktop/yogas/YogaDesk.h"
#include "app/desktop/yogas/YogaFilePaths.h"

#include <QWidget>

#include <optional>

namespace kestrav::desktop
{

namespace
{

constexpr wchar_t kYogaFilter[] = L"Yoga files (*.ksy)|*.ksy";
constexpr wchar_t kSaveFilter[] = L"Yoga files (*.ksy)|*.ksy|Plain lists of yogas (*.txt)|*.txt";
constexpr wchar_t kImportFilter[] = L"Yoga files and plain lists (*.ksy;*.txt)|*.ksy;*.txt";

QString ownFolder()
{
    return toQt(ownYogaPath().parent_path());
}

} // namespace

YogaCommands::YogaCommands(Workspace& workspace, QWidget* asker)
    : QObject(asker), workspace_(workspace), desk_(YogaDesk::of(workspace)), asker_(asker)
{}

bool YogaCommands::needsSelection()
{
    if (desk_.selected()) {
        return true;
    }
    workspace_.tell(tr("Select a yoga in the tree of yogas first."));
    return false;
}

void YogaCommands::NewYogaButtonClick()
{
    yoga::Yoga yoga;
    yoga.title = toUtf8(tr("New yoga"));
    desk_.addYoga(yoga);
}

void YogaCommands::DeleteYogaButtonClick()
{
    TMessages messages;
    if (needsSelection() && desk_.isDelivered(desk_.selected()->file)) {
        workspace_.tell(tr("Delivered yogas cannot be deleted."));
    } else if (desk_.selected()) {
        desk_.deleteYoga(messages);
    }
}

void YogaCommands::CopyYogaButtonClick()
{
    if (needsSelection() && desk_.copyToOwn()) {
        workspace_.tell(tr("The yoga stands in your own file now."));
    }
}

void YogaCommands::NewFileButtonClick()
{
    const auto file = TMessages::fileToSave(asker_, tr("New Yoga File"), kYogaFilter,
                                            ownFolder() + QStringLiteral("/yogas.ksy"));
    TMessages messages;
    if (file) {
        desk_.begin(toPath(*file), messages);
    }
}

void YogaCommands::OpenFileButtonClick()
{
    if (const auto file =
            TMessages::fileToOpen(asker_, tr("Open Yoga File"), kYogaFilter, ownFolder())) {
        desk_.open(toPath(*file));
    }
}

void YogaCommands::SaveFileButtonClick()
{
    if (!needsSelection()) {
        return;
    }
    if (desk_.isDelivered(desk_.selected()->file)) {
        SaveFileAsButtonClick();
        return;
    }
    TMessages messages;
    desk_.save(desk_.selected()->file, messages);
}

void YogaCommands::SaveFileAsButtonClick()
{
    if (!needsSelection()) {
        return;
    }
    const yoga::LoadedYogaFile& file = desk_.library().files()[desk_.selected()->file];
    const auto name =
        TMessages::fileToSave(asker_, tr("Save Yoga File As"), kSaveFilter,
                              ownFolder() + QLatin1Char('/') + toQt(file.path.filename()));
    TMessages messages;
    if (name) {
        desk_.saveAs(desk_.selected()->file, toPath(*name), messages);
    }
}

void YogaCommands::ImportButtonClick()
{
    if (const auto file =
            TMessages::fileToOpen(asker_, tr("Import Yogas"), kImportFilter, ownFolder())) {
        desk_.importFile(toPath(*file));
    }
}

void YogaCommands::SortButtonClick()
{
    if (needsSelection() && !desk_.sortFile()) {
        workspace_.tell(tr("Delivered files keep their order; the tree can be shown sorted."));
    }
}

void YogaCommands::SearchButtonClick()
{
    if (!needsSelection()) {
        return;
    }
    emit desk_.commitWanted();
    YogaFindings::of(workspace_).search(*desk_.yoga());
}

} // namespace kestrav::desktop
