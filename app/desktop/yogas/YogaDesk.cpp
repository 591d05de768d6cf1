#include "app/desktop/yogas/YogaDesk.h"

#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Workspace.h"
#include "app/desktop/yogas/YogaFilePaths.h"
#include "yoga/RuleEdit.h"
#include "yoga/YogaListEdit.h"

#include <QGuiApplication>
#include <QUndoCommand>
#include <QUndoStack>

#include <algorithm>
#include <utility>

namespace kestrav::desktop
{

namespace
{

namespace fs = std::filesystem;

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
    connect(&group_, &QUndoGroup::indexChanged, this, &YogaDesk::stepsChanged);
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
    return changeYoga(text, [&](yoga::Yoga& changed) { yoga::setRule(changed, rule); });
}

bool YogaDesk::deleteRule()
{
    commitFields();
    if (!selected_ || isDelivered(selected_->file)) {
        return false;
    }
    const yoga::LoadedYogaFile& old = library().files()[selected_->file];
    yoga::YogaFile file = old.file;
    yoga::setRule(file.yogas[selected_->yoga], {});
    const fs::path path = old.path;
    // A step from before would bring the rule back.
    Entry& changed = entry(path);
    changed.steps->clear();
    changed.beyondUndo = true;
    put(path, std::move(file));
    emit modifiedChanged();
    return true;
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
    emit yogaAdded();
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

} // namespace kestrav::desktop
