// Tables written to files of the user's choice.
#pragma once

#include "app/present/Table.h"

class QWidget;

namespace kestrav::desktop
{

class Workspace;

/// Asks for a file and writes the table as its ending says: text, CSV, HTML, RTF or JSON.
void saveTableAs(const present::Table& table, Workspace& workspace, QWidget* parent);

} // namespace kestrav::desktop
