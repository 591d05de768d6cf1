// What the program is, and whose work it uses.
#pragma once

#include <QDialog>

namespace kestrav::desktop
{

class TAboutBox : public QDialog
{
    Q_OBJECT

public:
    explicit TAboutBox(QWidget* parent);
};

} // namespace kestrav::desktop
