// Files that wait until they can be opened.
#pragma once

#include <QObject>

#include <deque>
#include <filesystem>

class QTimer;

namespace kestrav::desktop
{

class DatabaseActions;
class TKSVform1;

/// Opens files one after the other: each when the one before is read and no dialog, message or menu
/// is open, because what stands there belongs to the database that is open now.
class OpenQueue : public QObject
{
    Q_OBJECT

public:
    OpenQueue(TKSVform1& window, DatabaseActions& files);

    void add(const std::filesystem::path& file);

private:
    [[nodiscard]] bool busy() const;
    [[nodiscard]] bool isOpen(const std::filesystem::path& file) const;
    void openNext();

    TKSVform1& window_;
    DatabaseActions& files_;
    std::deque<std::filesystem::path> waiting_;
    QTimer* timer_;
};

} // namespace kestrav::desktop
