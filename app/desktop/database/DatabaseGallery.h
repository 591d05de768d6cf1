// The dialogs of databases as they look at work, for the gallery.
#pragma once

class QWidget;

namespace kestrav::desktop
{

class TKSVform1;

/// Merging the open database with a copy in which a few charts were changed.
[[nodiscard]] QWidget* sampleMergePreview(TKSVform1& window);
/// A list of which a line was refused.
[[nodiscard]] QWidget* sampleImportReport(TKSVform1& window);
/// Work that is half done.
[[nodiscard]] QWidget* sampleProgress(TKSVform1& window);

} // namespace kestrav::desktop
