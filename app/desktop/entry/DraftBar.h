// The bar that offers an unfinished chart entry.
#pragma once

#include "app/desktop/shell/OfferBar.h"

namespace kestrav::desktop
{

/// Taken means that the user wants to go on with the last draft, dropped that it is to go.
class DraftBar : public OfferBar
{
    Q_OBJECT

public:
    explicit DraftBar(QWidget* parent);

    /// Shows the bar when drafts were kept, and hides it when there are none.
    void lookAgain();
};

} // namespace kestrav::desktop
