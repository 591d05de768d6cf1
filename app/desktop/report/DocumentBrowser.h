// Documents in the toolkit's text browser.
#pragma once

#include "app/present/Document.h"

#include <QString>

class QTextBrowser;

namespace kestrav::desktop
{

/// The document in the HTML that the browser understands, with its drawings as pictures that are
/// put into the browser's resources, in the colours of its palette.
[[nodiscard]] QString documentForBrowser(const present::Document& document, QTextBrowser& browser);

} // namespace kestrav::desktop
