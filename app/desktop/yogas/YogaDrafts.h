// Keeps unsaved changes of yogas, and offers them after an end without saving.
#pragma once

#include "app/desktop/yogas/YogaDraft.h"

#include <QObject>

#include <map>

class QTimer;

namespace kestrav::desktop
{

class OfferBar;
class TKSVform1;
class YogaDesk;

/// Drafts of this run are kept after changes and every 20 seconds, and go when they are saved.
/// Those of an earlier run are offered in a bar until the user decides.
class YogaDrafts : public QObject
{
    Q_OBJECT

public:
    explicit YogaDrafts(TKSVform1& window);

    /// Keeps what is not saved now.
    void keep();
    /// Forgets the drafts of this run, when the user leaves without saving.
    void drop();

private:
    struct Kept
    {
        std::filesystem::path path;
        std::vector<std::uint8_t> bytes;
    };

    [[nodiscard]] std::vector<std::filesystem::path> offered() const;
    void keepFile(std::size_t file);
    void offer();
    void ContinueYogaDraftButtonClick();
    void DiscardYogaDraftButtonClick();

    TKSVform1& window_;
    YogaDesk& desk_;
    OfferBar* bar_;
    QTimer* timer_;
    std::map<std::filesystem::path, Kept> kept_; ///< by the yoga file
};

} // namespace kestrav::desktop
