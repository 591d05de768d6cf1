// One running program for each user: a second start hands its files to the first.
#pragma once

#include <QLocalServer>
#include <QObject>
#include <QStringList>

namespace kestrav::desktop
{

class SingleInstance : public QObject
{
    Q_OBJECT

public:
    explicit SingleInstance(QObject* parent = nullptr);

    /// Hands the files, as absolute paths, to a program that runs already. False when none does;
    /// then this one answers later starts.
    [[nodiscard]] bool handOver(const QStringList& files);

signals:
    /// Another start asks to show the window and to open files.
    void asked(const QStringList& files);

private:
    void receive();

    QLocalServer server_;
};

} // namespace kestrav::desktop
