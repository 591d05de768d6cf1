// Rows of controls that wrap.
#include "app/desktop/panels/FlowLayout.h"

#include <QVBoxLayout>
#include <QWidget>

#include <gtest/gtest.h>

#include <array>

namespace kestrav::desktop
{
namespace
{

constexpr int kGap = 4;
constexpr QSize kSize(100, 20);

struct Controls
{
    Controls()
    {
        for (QWidget*& widget : each) {
            widget = new QWidget(&owner);
            widget->setFixedSize(kSize);
        }
    }

    void arrange(int width)
    {
        owner.resize(width, 200);
        owner.layout()->setGeometry(owner.rect());
    }

    QWidget owner;
    std::array<QWidget*, 3> each{};
};

TEST(FlowLayout, TakesAsManyRowsAsItNeeds)
{
    Controls controls;
    auto* const flow = new FlowLayout(kGap);
    controls.owner.setLayout(flow);
    for (QWidget* const widget : controls.each) {
        flow->addWidget(widget);
    }
    // Three and the gaps around and between them need 316; the widest alone is what is asked for.
    EXPECT_EQ(flow->minimumSize(), kSize + QSize(2 * kGap, 2 * kGap));
    EXPECT_EQ(flow->sizeHint().width(), 316);
    EXPECT_EQ(flow->heightForWidth(316), 28);
    EXPECT_EQ(flow->heightForWidth(315), 52);
    EXPECT_EQ(flow->heightForWidth(150), 76);
    controls.arrange(315);
    EXPECT_EQ(controls.each[1]->geometry().topLeft(), QPoint(108, 4));
    EXPECT_EQ(controls.each[2]->geometry().topLeft(), QPoint(4, 28));
    EXPECT_EQ(flow->minimumSize().height(), 52) << "what is shown in two rows needs both";
    // What is hidden leaves its room to the others.
    controls.each[0]->hide();
    controls.arrange(315);
    EXPECT_EQ(controls.each[2]->geometry().topLeft(), QPoint(108, 4));
}

TEST(FlowLayout, KeepsTogetherWhatBelongsTogetherAndFillsItsRows)
{
    Controls controls;
    auto* const flow = new FlowLayout(kGap);
    controls.owner.setLayout(flow);
    flow->addWidget(controls.each[0]);
    flow->addStretch();
    flow->addTogether({controls.each[1], controls.each[2]});
    EXPECT_EQ(flow->minimumSize().width(), 204 + 2 * kGap);
    controls.arrange(400);
    EXPECT_EQ(controls.each[2]->geometry().right(), 400 - kGap - 1) << "at the end of the row";
    controls.arrange(300);
    EXPECT_EQ(controls.each[1]->y(), controls.each[2]->y());
    EXPECT_GT(controls.each[1]->y(), controls.each[0]->y());
    controls.owner.setLayoutDirection(Qt::RightToLeft);
    controls.arrange(400);
    EXPECT_EQ(controls.each[0]->geometry().right(), 400 - kGap - 1);
}

TEST(FlowLayout, TakesAllItsItemsWithIt)
{
    class Counted : public QSpacerItem
    {
    public:
        explicit Counted(int& alive) : QSpacerItem(1, 1), alive_(alive)
        {
            ++alive_;
        }
        ~Counted() override
        {
            --alive_;
        }

    private:
        int& alive_;
    };
    int alive = 0;
    {
        QWidget owner;
        auto* const box = new QVBoxLayout(&owner);
        auto* const flow = new FlowLayout(kGap);
        box->addLayout(flow);
        for (int i = 0; i < 3; ++i) {
            flow->addTogether({new QWidget(&owner)});
            flow->addItem(new Counted(alive));
        }
        EXPECT_EQ(alive, 3);
    }
    EXPECT_EQ(alive, 0);
}

} // namespace
} // namespace kestrav::desktop
