#include "alertorfarm.h"

#include <notify/events/notifyevent.h>

#include <QtCore/QSettings>
#include <QtGui/QContextMenuEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QMenu>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolButton>

using namespace Qt::StringLiterals;

namespace {

QList<quint64> shownIds(const EventsView *list)
{
    QList<quint64> ids;
    for (int row = 0; row < list->model()->rowCount(); ++row)
        ids += list->model()->index(row, 0).data(Qt::UserRole).toULongLong();
    return ids;
}

void clickTitle(const EventsView *list, int column)
{
    const QHeaderView *header = list->header();
    const QPoint at(header->sectionViewportPosition(column) + 10, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, at);
}

} // namespace

/// The list in its window, by mouse and keys.
class TestEventsWindow final : public QObject {
    Q_OBJECT

public:
    static void initMain() { Farm::prepare(); }

private Q_SLOTS:
    void listMenuFollowsTheSelection()
    {
        Farm farm;
        farm.show();
        QTRY_VERIFY(farm.alertor.isActiveWindow());
        TClientLib::TJob job = farm::job();
        job.attributeSetString("frames_mask", "/f/a.####.exr");
        farm.send(farm::notification(1, &job));
        farm.send(farm::notification(512));
        TClientLib::TJob bare = farm::job();
        bare.attributeSetString("output_folder", "/out");
        farm.send(farm::notification(1, &bare));
        QTRY_COMPARE(farm.alertor.events().size(), 3);
        const auto openedOn = [&farm](int row) {
            row < 0 ? farm.list()->clearSelection() : farm.click(row);
            QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, QCursor::pos());
            QApplication::sendEvent(farm.list()->viewport(), &event);
            QString enabled = textsOf(farm.menu("listMenu"), true);
            QTest::keyClick(farm.menu("listMenu"), Qt::Key_Escape);
            return enabled;
        };
        QCOMPARE(openedOn(-1), u"Remove all"_s);
        QCOMPARE(openedOn(1), u"&Acknowledge selection|&Remove selection\tDEL|Remove all"_s);
        QCOMPARE(
            openedOn(0),
            u"&Acknowledge selection|&Open output folder|Open &frame(s)|Open frame(s) exter&nally|&Remove "
            "selection\tDEL|Remove all"_s);
        farm.menu("listMenu")->actions().first()->trigger();
        QVERIFY(farm.alertor.events().at(0).acknowledged);
        QVERIFY(openedOn(2).contains(u"&Open output folder|&Remove"_s));
        QVERIFY(openedOn(0).startsWith(u"&Open output folder"_s));
    }

    void deleteKeyRemovesWhatIsSelected()
    {
        Farm farm;
        farm.show();
        farm.sendJobs({1024, 2048, 4096, 1024});
        farm.click(1);
        farm.click(2, Qt::ControlModifier);
        QTest::keyClick(farm.list(), Qt::Key_Delete);
        QCOMPARE(farm.alertor.events().at(1).eventId, 4U);
        QCOMPARE(farm.alertor.events().pendingLevel(), SuccessPending);
        QCOMPARE(farm.list()->currentIndex().row(), 1); // the row behind the removed ones
        QVERIFY(farm.list()->selectedIds().isEmpty());
        farm.menu("listMenu")->actions().last()->trigger();
        QCOMPARE(farm.alertor.events().size(), 0);
    }

    void theViewSurvivesRebuilds()
    {
        Farm farm;
        farm.show();
        farm.sendJobs(QList<int>(200, 1024));
        EventsView *list = farm.list();
        QScrollBar *bar = list->verticalScrollBar();
        QTRY_VERIFY(bar->maximum() > 0);
        QTRY_COMPARE(bar->value(), bar->maximum()); // new rows stay in sight
        list->scrollTo(list->model()->index(100, 0), QAbstractItemView::PositionAtTop);
        farm.click(102);
        farm.sendJobs({1024});
        QCOMPARE(list->indexAt({0, 0}).data(Qt::UserRole).toULongLong(), 101U); // but not against the user
        const_cast<EventsList &>(farm.alertor.events()).removeEvents({1, 2, 3, 150});
        QCOMPARE(list->selectedIds(), QList<quint64>{103});
        QCOMPARE(list->currentIndex().siblingAtColumn(0).data(Qt::UserRole).toULongLong(), 103U);
        QCOMPARE(list->indexAt({0, 0}).data(Qt::UserRole).toULongLong(), 101U);
    }

    void whatCameMeanwhileStandsOutUntilTheListHides()
    {
        Farm farm;
        farm.sendJobs({4096, 1024});
        farm.alertor.restore();
        QTRY_VERIFY(farm.alertor.isActiveWindow());
        farm.sendJobs({4096});
        const auto told = [&farm](int row) {
            const QModelIndex index = farm.list()->model()->index(row, EventsModel::Acknowledged);
            return index.data(Qt::AccessibleTextRole).toString();
        };
        auto *errors = farm.alertor.findChild<QToolButton *>(u"pending_itemError"_s);
        QTRY_COMPARE(errors->text(), u"2"_s);
        QCOMPARE(errors->accessibleName(), u"Pending errors: 2"_s);
        QVERIFY(!farm.alertor.findChild<QToolButton *>(u"pending_itemWarning"_s)->isVisible());
        QCOMPARE(QStringList({told(0), told(2)}), QStringList({u"Acknowledged just now"_s, u"Pending"_s}));

        QTest::mouseClick(errors, Qt::LeftButton);
        QCOMPARE(shownIds(farm.list()), QList<quint64>({1, 3}));
        farm.sendJobs({1024, 4096});
        QCOMPARE(shownIds(farm.list()), QList<quint64>({1, 3, 5}));
        farm.click(1);
        farm.menu("listMenu")->actions().first()->trigger();
        QCOMPARE(shownIds(farm.list()), QList<quint64>({1, 3, 5})); // what is dealt with stays in sight
        QVERIFY(farm.alertor.events().find(3)->acknowledged);
        farm.list()->selectAll();
        QTest::keyClick(farm.list(), Qt::Key_Delete);
        QCOMPARE(shownIds(farm.list()), QList<quint64>({2, 4})); // not a list that looks empty
        QVERIFY(!errors->isVisible());

        farm.alertor.close();
        QCOMPARE(QStringList({told(0), told(1)}), QStringList({u"Acknowledged"_s, u"Pending"_s}));
    }

    void titlesSortAndTheColumnsAreRemembered()
    {
        QVariant columns;
        QVariant sorting;
        {
            Farm farm;
            farm.show();
            farm.sendJobs({1024, 4096, 2048});
            clickTitle(farm.list(), EventsModel::Type);
            QCOMPARE(shownIds(farm.list()), QList<quint64>({2, 3, 1}));
            farm.click(1);
            farm.sendJobs({4096});
            QCOMPARE(shownIds(farm.list()), QList<quint64>({2, 4, 3, 1}));
            QCOMPARE(farm.list()->selectedIds(), QList<quint64>{3});
            clickTitle(farm.list(), EventsModel::Type);
            QCOMPARE(shownIds(farm.list()), QList<quint64>({1, 3, 2, 4}));
            QCOMPARE(farm.list()->selectedIds(), QList<quint64>{3});
            QTest::keyClick(farm.list(), Qt::Key_Delete);
            QCOMPARE(shownIds(farm.list()), QList<quint64>({1, 2, 4}));
            QCOMPARE(farm.list()->currentIndex().row(), 1); // the row behind the one that went
            clickTitle(farm.list(), EventsModel::Type);
            QCOMPARE(shownIds(farm.list()), QList<quint64>({1, 2, 4})); // as they came
            clickTitle(farm.list(), EventsModel::Job);
            QMenu *menu = farm.menu("columnsMenu");
            menu->popup({0, 0});
            menu->actions().at(EventsModel::Chunk)->trigger();
            menu->close();
            farm.list()->header()->resizeSection(EventsModel::User, 123);
            farm.alertor.close();
            columns = QSettings().value(u"eventsWindow/columns"_s);
            sorting = QSettings().value(u"eventsWindow/sort"_s);
        }
        Farm again;
        QSettings().setValue(u"eventsWindow/columns"_s,
                             columns.toStringList() + QStringList{u"-type=9999"_s, u"x"_s});
        QSettings().setValue(u"eventsWindow/sort"_s, sorting);
        again.show();
        const QHeaderView *header = again.list()->header();
        QVERIFY(header->isSectionHidden(EventsModel::Chunk) && !header->isSectionHidden(EventsModel::Type));
        QCOMPARE(header->sectionSize(EventsModel::User), 123);
        QCOMPARE(header->sortIndicatorSection(), int(EventsModel::Job));
        QSettings().clear();
    }

    void theListIsUsedByKeysAlone()
    {
        Farm farm;
        farm.show();
        farm.alertor.activateWindow();
        QTRY_VERIFY(farm.alertor.isActiveWindow());
        farm.sendJobs({1024, 1024, 1024});
        farm.click(0);
        QCursor::setPos(0, 0);
        QTest::keyClick(farm.list(), Qt::Key_End);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, {0, 0});
        QApplication::sendEvent(farm.list(), &event);
        const QPoint menuAt = farm.list()->viewport()->mapFromGlobal(farm.menu("listMenu")->pos());
        QCOMPARE(farm.list()->indexAt(menuAt).row(), 2);
        QTest::keyClick(farm.menu("listMenu"), Qt::Key_Escape);
        QTimer::singleShot(0, &farm.alertor, [&farm] {
            QTest::keyClick(farm.menu("windowMenu"), Qt::Key_S);
            farm.menu("windowMenu")->close();
        });
        QTest::keyClick(&farm.alertor, Qt::Key_F10);
        QVERIFY(farm.menu("trayMenu")->actions().at(3)->isChecked()); // Silent
    }

    void theWindowFitsTheScreenAndItsPlaceInTheStack()
    {
        Farm farm(u"eventsWindow/keepAbove"_s, false);
        QCOMPARE(int(farm.alertor.windowFlags() & 0x40400), 0x400);
        QSettings().setValue(u"eventsWindow/rect"_s, QRect(-700, -900, 3000, 2000));
        farm.show();
        QTRY_VERIFY(farm.alertor.frameGeometry() != farm.alertor.geometry());
        QTRY_VERIFY(farm.alertor.screen()->availableGeometry().contains(farm.alertor.frameGeometry()));
        QSettings().clear();
    }
};

QTEST_MAIN(TestEventsWindow)
#include "tst_eventswindow.moc"
