// A diagram under a title, as one of many.
#pragma once

#include <QWidget>

class QLabel;

namespace kestrav::desktop
{

class DiagramView;

class DiagramTile : public QWidget
{
    Q_OBJECT

public:
    explicit DiagramTile(QWidget* parent);

    [[nodiscard]] DiagramView* view() const
    {
        return view_;
    }
    /// The brief title stands where the other is too long, `note` below the diagram where it is not
    /// empty.
    void setWords(const QString& title, const QString& brief, const QString& tip,
                  const QString& note = {});
    /// The title in full.
    [[nodiscard]] QString title() const
    {
        return words_;
    }
    /// Shown in the large diagram.
    void setChosen(bool chosen);
    /// What title and note take of the height.
    [[nodiscard]] int heightOfWords() const;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void elide();

    QLabel* title_;
    DiagramView* view_;
    QLabel* note_;
    QString words_;
    QString brief_;
    bool chosen_ = false;
};

} // namespace kestrav::desktop
