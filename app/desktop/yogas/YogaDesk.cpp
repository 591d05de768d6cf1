#include "app/desktop/yogas/YogaDesk.h"

#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Workspace.h"
#include "core/Locations.h"
#include "data/DatabaseMessages.h"
#include "yoga/CustomYogaList.h"
#include "yoga/RuleEdit.h"
#include "yoga/YogaListEdit.h"

#include <QGuiApplication>
#include <QUndoCommand>
#include <QUndoStack>

#include <algorithm>
#include <system_error>
#include <utility>

namespace kestrav::desktop
{

namespace
{

namespace fs = std::filesystem;

constexpr int kMostSteps = 200;

bool isPlainList(const fs::path& path)
{
    return path.extension() == ".txt";
}

// A file that does not exist yet has no canonical name.
fs::path plainPath(const fs::path& path)
{
    std::error_code problem;
    fs::path plain = fs::weakly_canonical(path, problem);
    return problem ? path : plain;
}

void setRule(yoga::Yoga& yoga, std::string_view rule)
{
    yoga.rule = rule;
    if (const auto read = yoga::YogaRule::read(rule)) {
        yoga.options = yoga::optionsOfRule(read.value());
        yoga.vargas = yoga::vargasOfRule(read.value());
    }
}

core::Result<yoga::YogaFile> readYogas(const fs::path& path)
{
    if (!isPlainList(path)) {
        return yoga::readYogaFile(path);
    }
    const auto list = yoga::readCustomYogas(path);
    if (!list) {
        return list.error();
    }
    yoga::YogaFile file;
    yoga::importYogas(file, list.value());
    return file;
}

} // namespace

// A whole file before and after a step: files are small, and neighbouring steps share a state.
class YogaDesk::Step : public QUndoCommand
{
public:
    using State = std::shared_ptr<const yoga::YogaFile>;

    Step(const QString& text, YogaDesk& desk, fs::path path, State before, State after)
        : QUndoCommand(text), desk_(desk), path_(std::move(path)), before_(std::move(before)),
          after_(std::move(after))
    {}

    void undo() override
    {
        desk_.put(path_, *before_);
    }
    void redo() override
    {
        desk_.put(path_, *after_);
    }

private:
    YogaDesk& desk_;
    fs::path path_;
    State before_;
    State after_;
};

YogaDesk& YogaDesk::of(Workspace& workspace)
{
    auto* const found = workspace.findChild<YogaDesk*>(QString(), Qt::FindDirectChildrenOnly);
    return found != nullptr ? *found : *new YogaDesk(workspace);
}

YogaDesk::YogaDesk(Workspace& workspace) : QObject(&workspace), workspace_(workspace)
{
    connect(&workspace, &Workspace::yogasChanged, this, &YogaDesk::settleSelection);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState state) {
                if (state == Qt::ApplicationActive) {
                    lookAtFiles();
                }
            });
}

// Stacks tell their group when they go.
YogaDesk::~YogaDesk()
{
    group_.disconnect(this);
    entries_.clear();
}

const yoga::YogaLibrary& YogaDesk::library() const
{
    return *workspace_.yogas();
}

void YogaDesk::select(std::optional<yoga::YogaPlace> place)
{
    commitFields();
    moveTo(place);
}

void YogaDesk::commitFields()
{
    // To commit is a step, before which fields are committed.
    if (!committing_) {
        committing_ = true;
        emit commitWanted();
        committing_ = false;
    }
}

void YogaDesk::moveTo(std::optional<yoga::YogaPlace> place)
{
    const auto& files = library().files();
    if (place &&
        (place->file >= files.size() || place->yoga >= files[place->file].file.yogas.size())) {
        place.reset();
    }
    const bool same =
        place.has_value() == selected_.has_value() &&
        (!place || (place->file == selected_->file && place->yoga == selected_->yoga));
    selected_ = place;
    group_.setActiveStack(steps());
    if (!same) {
        emit selectionChanged();
    }
}

const yoga::Yoga* YogaDesk::yoga() const
{
    return selected_ ? &library().yoga(*selected_) : nullptr;
}

// After the library changed the place may be gone.
void YogaDesk::settleSelection()
{
    if (!selected_) {
        return;
    }
    const auto& files = library().files();
    if (selected_->file >= files.size() || files[selected_->file].file.yogas.empty()) {
        moveTo(std::nullopt);
    } else {
        const std::size_t last = files[selected_->file].file.yogas.size() - 1;
        moveTo(yoga::YogaPlace{selected_->file, std::min(selected_->yoga, last)});
    }
}

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

QUndoStack* YogaDesk::steps()
{
    return selected_ && !isDelivered(selected_->file)
               ? entry(library().files()[selected_->file].path).steps.get()
               : nullptr;
}

void YogaDesk::undo()
{
    commitFields();
    if (QUndoStack* const stack = steps()) {
        stack->undo();
    }
}

void YogaDesk::redo()
{
    commitFields();
    if (QUndoStack* const stack = steps()) {
        stack->redo();
    }
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
    std::error_code problem;
    fs::create_directories(path.parent_path(), problem);
    const core::Result<void> written =
        isPlainList(path) ? yoga::writeCustomYogas(path, yoga::asCustomYogas(saved.file))
                          : yoga::writeYogaFile(path, saved.file);
    if (!written) {
        messages.notice(data::kErrorCaption,
                        data::kSavingError + (L" " + core::fromFileBytes(written.error().text())));
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

bool YogaDesk::pushStep(std::size_t file, const QString& text,
                        const std::function<bool(yoga::YogaFile&)>& work)
{
    commitFields();
    if (file >= library().files().size() || isDelivered(file)) {
        return false;
    }
    const yoga::LoadedYogaFile& old = library().files()[file];
    auto before = std::make_shared<const yoga::YogaFile>(old.file);
    auto after = std::make_shared<yoga::YogaFile>(old.file);
    if (!work(*after)) {
        return false;
    }
    const fs::path path = old.path;
    entry(path).steps->push(new Step(text, *this, path, std::move(before), std::move(after)));
    return true;
}

bool YogaDesk::changeFile(const QString& text, const std::function<bool(yoga::YogaFile&)>& work)
{
    return selected_ && pushStep(selected_->file, text, work);
}

bool YogaDesk::changeYoga(const QString& text, const std::function<void(yoga::Yoga&)>& work)
{
    return changeFile(text, [&](yoga::YogaFile& file) {
        work(file.yogas[selected_->yoga]);
        return true;
    });
}

bool YogaDesk::changeRule(const QString& text, std::string_view rule)
{
    return changeYoga(text, [&](yoga::Yoga& yoga) { setRule(yoga, rule); });
}

bool YogaDesk::deleteRule()
{
    commitFields();
    if (!selected_ || isDelivered(selected_->file)) {
        return false;
    }
    const yoga::LoadedYogaFile& old = library().files()[selected_->file];
    yoga::YogaFile file = old.file;
    setRule(file.yogas[selected_->yoga], {});
    const fs::path path = old.path;
    // A step from before would bring the rule back.
    Entry& changed = entry(path);
    changed.steps->clear();
    changed.beyondUndo = true;
    put(path, std::move(file));
    emit modifiedChanged();
    return true;
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

std::optional<std::size_t> YogaDesk::fileToChange()
{
    return selected_ && !isDelivered(selected_->file) ? std::optional(selected_->file) : ownFile();
}

bool YogaDesk::addYoga(yoga::Yoga yoga)
{
    const std::optional<std::size_t> file = fileToChange();
    if (!file) {
        return false;
    }
    const bool here = selected_ && selected_->file == *file;
    std::size_t place = library().files()[*file].file.yogas.size();
    if (here) {
        place = selected_->yoga + 1;
        if (yoga.chapter.empty()) {
            yoga.chapter = library().yoga(*selected_).chapter;
        }
    }
    if (!pushStep(*file, tr("new yoga"), [&](yoga::YogaFile& changed) {
            changed.yogas.insert(changed.yogas.begin() + std::ptrdiff_t(place), std::move(yoga));
            return true;
        })) {
        return false;
    }
    select(yoga::YogaPlace{*file, place});
    return true;
}

bool YogaDesk::deleteYoga(core::Messages& messages)
{
    return changeFile(tr("delete yoga"), [&](yoga::YogaFile& file) {
        return yoga::deleteYoga(file, selected_->yoga, messages);
    });
}

bool YogaDesk::sortFile()
{
    if (!selected_) {
        return false;
    }
    commitFields();
    const yoga::Yoga before = library().yoga(*selected_);
    std::size_t place = 0;
    const bool sorted = changeFile(tr("sort yogas"), [&](yoga::YogaFile& file) {
        yoga::sortYogas(file);
        const auto found =
            std::find_if(file.yogas.begin(), file.yogas.end(), [&](const yoga::Yoga& one) {
                return one.title == before.title && one.rule == before.rule;
            });
        place = std::size_t(found - file.yogas.begin());
        return true;
    });
    if (sorted) {
        moveTo(yoga::YogaPlace{selected_->file, place});
    }
    return sorted;
}

bool YogaDesk::importFile(const fs::path& path)
{
    const core::Result<yoga::YogaFile> read = readYogas(path);
    if (!read) {
        workspace_.tellProblem(toQt(read.error().text()));
        return false;
    }
    const std::optional<std::size_t> file = fileToChange();
    const std::size_t before = file ? library().files()[*file].file.yogas.size() : 0;
    if (!file || !pushStep(*file, tr("import yogas"), [&](yoga::YogaFile& changed) {
            yoga::importYogas(changed, read.value());
            return true;
        })) {
        return false;
    }
    select(yoga::YogaPlace{*file, before});
    workspace_.tell(tr("Imported %n yoga(s) from %1.", "", int(read.value().yogas.size()))
                        .arg(toQt(path.filename())));
    return true;
}

bool YogaDesk::copyToOwn()
{
    commitFields();
    const yoga::Yoga* const from = yoga();
    if (from == nullptr) {
        return false;
    }
    yoga::Yoga copy = *from;
    const std::optional<std::size_t> file = ownFile();
    if (!file) {
        return false;
    }
    const std::size_t place = library().files()[*file].file.yogas.size();
    if (!pushStep(*file, tr("copy yoga"), [&](yoga::YogaFile& changed) {
            changed.yogas.push_back(std::move(copy));
            return true;
        })) {
        return false;
    }
    select(yoga::YogaPlace{*file, place});
    return true;
}

fs::path ownYogaPath()
{
    const std::optional<fs::path> found = core::findFile(yoga::kOwnYogaFile);
    return found ? *found : core::userDataFolder() / yoga::kOwnYogaFile;
}

bool openYogaFile(Workspace& workspace, const fs::path& path)
{
    return YogaDesk::of(workspace).open(path);
}

} // namespace kestrav::desktop
