// What was changed and not saved, kept for the case that the program ends without asking.
#pragma once

#include <QObject>

#include <filesystem>
#include <optional>

class QTimer;

namespace kestrav::desktop
{

class BackgroundWork;
class ExchangeActions;
class OfferBar;
class OpenDatabase;
class TKSVform1;

/// While the open database has changes that are not saved, a copy of it stands in the state folder.
/// It goes when they are saved, taken back or dropped by the user. A copy that is found when its
/// database is opened was left by a program that was killed; a bar offers to merge it.
class UnsavedCopy : public QObject
{
    Q_OBJECT

public:
    UnsavedCopy(TKSVform1& window, ExchangeActions& exchange);

private:
    void begin();
    void follow();
    void write();
    void forget();
    void lookForLeft();
    void BringBackButtonClick();
    void DiscardButtonClick();
    [[nodiscard]] OpenDatabase& database();

    TKSVform1& window_;
    ExchangeActions& exchange_;
    BackgroundWork* work_;
    QTimer* timer_;
    OfferBar* bar_;
    std::filesystem::path written_;             ///< the copy of this run; empty for none
    std::optional<std::filesystem::path> left_; ///< the copy that is offered
};

} // namespace kestrav::desktop
