// Left clicks on items of the toolkit's tree and table views become SignalClicked.
#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include "TarvexGUIToolkit/StandardItem.h"
#include "TarvexGUIToolkit/StandardItemModel.h"
#include "TarvexGUIToolkit/TableView.h"
#include "TarvexGUIToolkit/TreeView.h"

namespace {

template <typename View>
class AbstractItemView : public ::testing::Test {
protected:
    void SetUp() override
    {
        model.setColumnCount(2);
        for (int row = 0; row < 3; ++row) {
            model.appendRow({new TarvexGUIToolkit::CStandardItem(QString("name %1").arg(row)),
                             new TarvexGUIToolkit::CStandardItem(QString("value %1").arg(row))});
        }
        view.setModel(&model);
        view.resize(400, 300);
        view.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    }

    QPoint centerOf(const QModelIndex& index) { return view.visualRect(index).center(); }

    TarvexGUIToolkit::CStandardItemModel model;
    View view;
};

using Views = ::testing::Types<TarvexGUIToolkit::CTreeView, TarvexGUIToolkit::CTableView>;
TYPED_TEST_SUITE(AbstractItemView, Views);

} // namespace

TYPED_TEST(AbstractItemView, LeftClickOnAnItemEmitsItsIndex)
{
    QSignalSpy clicked(&this->view, &TypeParam::SignalClicked);
    const QModelIndex index = this->model.index(1, 1);
    QTest::mouseClick(this->view.viewport(), Qt::LeftButton, Qt::NoModifier, this->centerOf(index));
    ASSERT_EQ(clicked.count(), 1);
    EXPECT_EQ(clicked.at(0).at(0).value<QModelIndex>(), index);
    // The click also made the row current, which slots read through the selection model.
    EXPECT_EQ(this->view.selectionModel()->currentIndex(), index);
}

TYPED_TEST(AbstractItemView, EveryClickCountsAlsoOnTheSameItem)
{
    QSignalSpy clicked(&this->view, &TypeParam::SignalClicked);
    const QModelIndex index = this->model.index(2, 0);
    QTest::mouseClick(this->view.viewport(), Qt::LeftButton, Qt::NoModifier, this->centerOf(index));
    QTest::mouseClick(this->view.viewport(), Qt::LeftButton, Qt::NoModifier, this->centerOf(index));
    EXPECT_EQ(clicked.count(), 2);
}

TYPED_TEST(AbstractItemView, RightClickEmitsNothing)
{
    QSignalSpy clicked(&this->view, &TypeParam::SignalClicked);
    QTest::mouseClick(this->view.viewport(), Qt::RightButton, Qt::NoModifier, this->centerOf(this->model.index(0, 0)));
    EXPECT_EQ(clicked.count(), 0);
}

TYPED_TEST(AbstractItemView, ClickBelowTheLastRowEmitsNothing)
{
    QSignalSpy clicked(&this->view, &TypeParam::SignalClicked);
    const QRect last = this->view.visualRect(this->model.index(2, 0));
    QTest::mouseClick(this->view.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(last.center().x(), last.bottom() + 40));
    EXPECT_EQ(clicked.count(), 0);
}

TYPED_TEST(AbstractItemView, CodeOutsideCanEmitTheSignal)
{
    QModelIndex received;
    QObject::connect(&this->view, &TypeParam::SignalClicked, [&received](const QModelIndex& index) { received = index; });
    const QModelIndex index = this->model.index(0, 0);
    emit this->view.SignalClicked(index);
    EXPECT_EQ(received, index);

    // Also through the shared base, by its string signature and the virtual call.
    QSignalSpy byName(&this->view, SIGNAL(SignalClicked(const QModelIndex&)));
    TarvexGUIToolkit::CAbstractItemView* base = &this->view;
    base->SignalClicked(this->model.index(1, 0));
    ASSERT_EQ(byName.count(), 1);
    EXPECT_EQ(byName.at(0).at(0).value<QModelIndex>(), this->model.index(1, 0));
}

TYPED_TEST(AbstractItemView, SelectsWholeRowsAndNeverEdits)
{
    EXPECT_EQ(this->view.selectionBehavior(), QAbstractItemView::SelectRows);
    EXPECT_EQ(this->view.selectionMode(), QAbstractItemView::SingleSelection);
    EXPECT_EQ(this->view.editTriggers(), QAbstractItemView::NoEditTriggers);
}
