#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Workspace.h"
#include "app/desktop/yogas/YogaDesk.h"
#include "app/desktop/yogas/YogaFilePaths.h"
#include "core/Locations.h"
#include "data/DatabaseCommands.h"
#include "data/DatabaseMessages.h"
#include "yoga/RuleEdit.h"
#include "yoga/YogaListEdit.h"

#include <QUndoStack>

#include <algorithm>
#include <utility>

namespace kestrav::desktop
{

namespace
{

namespace fs = std::filesystem;

constexpr int kMostSteps = 200;

} // namespace

bool YogaDesk::isDelivered(std::size_t file) const
{
    if (file >= library().files().size()) {
        return false;
    }
    const fs::path folder = plainPath(library().files()[file].path).parent_path();
    const std::vector<fs::path> folders = core::searchFolders();
    return std::any_of(folders.begin(), folders.end(), [&](const fs::path& one) {
        return plainPath(one / yoga::kYogaFolder) == folder;
    });
}

YogaDesk::Entry& YogaDesk::entry(const fs::path& path)
{
    const auto [place, isNew] = entries_.try_emplace(path);
    Entry& made = place->second;
    if (isNew) {
        made.steps = std::make_unique<QUndoStack>();
        made.steps->setUndoLimit(kMostSteps);
        made.stamp = data::stampOf(path);
        group_.addStack(made.steps.get());
        connect(made.steps.get(), &QUndoStack::cleanChanged, this, &YogaDesk::modifiedChanged);
    }
    return made;
}

bool YogaDesk::isModified(std::size_t file) const
{
    if (file >= library().files().size()) {
        return false;
    }
    const auto found = entries_.find(library().files()[file].path);
    return found != entries_.end() && (found->second.beyondUndo || !found->second.steps->isClean());
}

bool YogaDesk::anyModified() const
{
    for (std::size_t file = 0; file < library().files().size(); ++file) {
        if (isModified(file)) {
            return true;
        }
    }
    return false;
}

std::optional<yoga::YogaFile> YogaDesk::unsaved(std::size_t file)
{
    if (isDelivered(file)) {
        return std::nullopt;
    }
    yoga::YogaFile typed = library().files()[file].file;
    bool changed = isModified(file);
    if (selected_ && selected_->file == file) {
        yoga::Yoga& now = typed.yogas[selected_->yoga];
        const yoga::Yoga before = now;
        emit typedWanted(&now);
        if (now.rule != before.rule) {
            yoga::setRule(now, std::string(now.rule));
        }
        changed = changed || now.title != before.title || now.chapter != before.chapter ||
                  now.rule != before.rule || now.interpretation != before.interpretation ||
                  now.comment != before.comment;
    }
    return changed ? std::optional(std::move(typed)) : std::nullopt;
}

std::optional<std::size_t> YogaDesk::indexOf(const fs::path& path) const
{
    const auto& files = library().files();
    const fs::path plain = plainPath(path);
    for (std::size_t i = 0; i < files.size(); ++i) {
        if (files[i].path == path || plainPath(files[i].path) == plain) {
            return i;
        }
    }
    return std::nullopt;
}

void YogaDesk::put(const fs::path& path, yoga::YogaFile file)
{
    auto changed = std::make_shared<yoga::YogaLibrary>(library());
    changed->store(path, std::move(file));
    workspace_.setYogas(std::move(changed));
}

bool YogaDesk::open(const fs::path& path)
{
    const std::optional<std::size_t> loaded = indexOf(path);
    if (loaded && isModified(*loaded)) {
        workspace_.tellProblem(
            tr("%1 is open already and has changes that are not saved.").arg(toQt(path)));
        select(yoga::YogaPlace{*loaded, 0});
        return false;
    }
    core::Result<yoga::YogaFile> read = readYogas(path);
    if (!read) {
        workspace_.tellProblem(toQt(read.error().text()));
        return false;
    }
    const fs::path kept = loaded ? library().files()[*loaded].path : plainPath(path);
    const std::size_t count = read.value().yogas.size();
    put(kept, std::move(read.value()));
    Entry& opened = entry(kept);
    opened.stamp = data::stampOf(kept);
    opened.steps->clear();
    select(yoga::YogaPlace{*indexOf(kept), 0});
    workspace_.tell(tr("Opened %1 with %n yoga(s).", "", int(count)).arg(toQt(kept.filename())));
    return true;
}

bool YogaDesk::begin(const fs::path& path, core::Messages& messages)
{
    if (data::stampOf(path).exists() && messages.show(data::kWarningCaption, data::kOverwrite,
                                                      core::Buttons::YesNo) != core::Answer::Yes) {
        return false;
    }
    yoga::YogaFile file;
    file.name = path.stem().string();
    if (const auto written = yoga::writeYogaFile(path, file); !written) {
        workspace_.tellProblem(toQt(written.error().text()));
        return false;
    }
    const fs::path kept = indexOf(path) ? library().files()[*indexOf(path)].path : plainPath(path);
    put(kept, std::move(file));
    Entry& begun = entry(kept);
    begun.steps->clear();
    begun.beyondUndo = false;
    begun.stamp = data::stampOf(kept);
    emit modifiedChanged();
    // Its first yoga gives the new file something to work on.
    return pushStep(*indexOf(kept), tr("new yoga"),
                    [](yoga::YogaFile& changed) {
                        changed.yogas.emplace_back().title = "New yoga";
                        return true;
                    }) &&
           (select(yoga::YogaPlace{*indexOf(kept), 0}), true);
}

bool YogaDesk::save(std::size_t file, core::Messages& messages)
{
    return file < library().files().size() && saveAs(file, library().files()[file].path, messages);
}

bool YogaDesk::saveAs(std::size_t file, const fs::path& path, core::Messages& messages)
{
    commitFields();
    const yoga::LoadedYogaFile saved = library().files()[file];
    for (std::size_t i = 0; i < saved.file.yogas.size(); ++i) {
        if (!yoga::tellsMatchingBrackets(saved.file.yogas[i].rule, messages)) {
            select(yoga::YogaPlace{file, i});
            return false;
        }
    }
    const bool same = plainPath(path) == plainPath(saved.path);
    if (same && isDelivered(file)) {
        workspace_.tellProblem(tr("Delivered files are to read only; choose another name."));
        return false;
    }
    const auto agrees = [&](const std::wstring& question) {
        return messages.show(data::kWarningCaption, question, core::Buttons::YesNo) ==
               core::Answer::Yes;
    };
    const data::FileStamp now = data::stampOf(path);
    if (same && now.exists() && !(now == entry(saved.path).stamp) &&
        !agrees(data::changedOnDiskQuestion(path))) {
        return false;
    }
    if (!same && now.exists() && !agrees(data::kOverwrite)) {
        return false;
    }
    if (const core::Result<void> written = writeYogas(path, saved.file); !written) {
        data::tellSavingError(written.error(), messages);
        return false;
    }
    if (same) {
        Entry& done = entry(saved.path);
        done.stamp = data::stampOf(path);
        done.beyondUndo = false;
        done.steps->setClean();
        emit modifiedChanged();
    } else if (!isPlainList(path)) {
        open(path);
    }
    workspace_.tell(tr("Saved %1").arg(toQt(path)));
    return true;
}

bool YogaDesk::mayClose(core::Messages& messages)
{
    commitFields();
    for (std::size_t file = 0; file < library().files().size(); ++file) {
        if (!isModified(file)) {
            continue;
        }
        const core::Answer answer = messages.show(
            yoga::kQueryCaption,
            toWide(
                tr("Save the changes of %1?").arg(toQt(library().files()[file].path.filename()))),
            core::Buttons::YesNoCancel);
        if (answer == core::Answer::Cancel ||
            (answer == core::Answer::Yes && !save(file, messages))) {
            return false;
        }
    }
    return true;
}

data::FileStamp YogaDesk::stamp(std::size_t file)
{
    return entry(library().files()[file].path).stamp;
}

fs::path YogaDesk::restore(const fs::path& path, yoga::YogaFile file, const data::FileStamp& stamp)
{
    if (!indexOf(path)) {
        core::Result<yoga::YogaFile> read = readYogas(path);
        put(path, read ? std::move(read.value()) : yoga::YogaFile());
    }
    const std::size_t index = *indexOf(path);
    pushStep(index, tr("unsaved changes"), [&file](yoga::YogaFile& changed) {
        changed = std::move(file);
        return true;
    });
    const fs::path loaded = library().files()[index].path;
    entry(loaded).stamp = stamp;
    select(yoga::YogaPlace{index, 0});
    return loaded;
}

void YogaDesk::lookAtFiles()
{
    for (auto& [path, one] : entries_) {
        const data::FileStamp now = data::stampOf(path);
        if (!now.exists() || now == one.stamp) {
            continue;
        }
        const std::optional<std::size_t> file = indexOf(path);
        one.stamp = now;
        if (file && isModified(*file)) {
            workspace_.tellProblem(
                tr("%1 was changed by another program; saving asks before it is replaced.")
                    .arg(toQt(path.filename())));
            one.stamp = {};
        } else if (core::Result<yoga::YogaFile> read = readYogas(path)) {
            one.steps->clear();
            put(path, std::move(read.value()));
            workspace_.tell(
                tr("%1 was changed by another program and read again.").arg(toQt(path.filename())));
        }
    }
}

std::optional<std::size_t> YogaDesk::ownFile()
{
    const fs::path path = ownYogaPath();
    if (const auto loaded = indexOf(path)) {
        return loaded;
    }
    yoga::YogaFile file;
    file.name = toUtf8(tr("My yogas"));
    if (data::stampOf(path).exists()) {
        core::Result<yoga::YogaFile> read = yoga::readYogaFile(path);
        if (!read) {
            workspace_.tellProblem(toQt(read.error().text()));
            return std::nullopt;
        }
        file = std::move(read.value());
    }
    put(path, std::move(file));
    return indexOf(path);
}

bool openYogaFile(Workspace& workspace, const fs::path& path)
{
    return YogaDesk::of(workspace).open(path);
}

} // namespace kestrav::desktop
