#include "modals.h"
#include "table.h"
#include "xuser.h"

#include <ui/product.h>
#include <ui/qheaderlabel.h>
#include <ui/qskinneddialog.h>
#include <ui/qskinneddialogborder.h>

#include <QtCore/QSettings>
#include <QtGui/QAccessible>
#include <QtGui/QScreen>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <memory>

using Border = QSkinnedDialogBorder;

namespace {

const QRect kPlace(200, 150, 400, 300);

/// Tells a rejection from a close.
class Dialog : public QSkinnedDialog {
public:
    using QSkinnedDialog::QSkinnedDialog;
    int closes = 0;

protected:
    void closeEvent(QCloseEvent *event) override
    {
        ++closes;
        QSkinnedDialog::closeEvent(event);
    }
};

// The refresh, set-size and close buttons, in the order of the header.
QList<QPushButton *> headerButtons(const QWidget &dialog)
{
    return dialog.findChildren<QPushButton *>(QStringLiteral("skinnedDialogCloseButton"));
}

void showAt(QWidget &dialog, const QRect &place)
{
    dialog.setGeometry(place);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTRY_COMPARE(xuser::geometry(dialog), place);
    // Where menus and combo boxes would open.
    QTRY_COMPARE(dialog.mapToGlobal(QPoint(0, 0)), place.topLeft());
}

} // namespace

class TestSkinnedDialog : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QSettings().clear(); }

    void initTestCase()
    {
        QCoreApplication::setOrganizationName(product::kOrganisation);
        QCoreApplication::setApplicationName(product::kApplicationName);
    }

    void piecesLieRoundTheContentAndArePainted()
    {
        const int w = 400;
        const int h = 300;
        const int b = 9;
        const std::tuple<const char *, Qt::CursorShape, QRect> pieces[] = {
            {"TopBorder", Qt::SizeVerCursor, {b, 0, w - 2 * b, b}},
            {"BottomBorder", Qt::SizeVerCursor, {b, h - b, w - 2 * b, b}},
            {"LeftBorder", Qt::SizeHorCursor, {0, b, b, h - 2 * b}},
            {"RightBorder", Qt::SizeHorCursor, {w - b, b, b, h - 2 * b}},
            {"TopLeftBorder", Qt::SizeFDiagCursor, {0, 0, b, b}},
            {"TopRightBorder", Qt::SizeBDiagCursor, {w - b, 0, b, b}},
            {"BottomLeftBorder", Qt::SizeBDiagCursor, {0, h - b, b, b}},
            {"BottomRightBorder", Qt::SizeFDiagCursor, {w - b, h - b, b, b}},
            {"Header", Qt::ArrowCursor, {b, b, w - 2 * b, 20}},
        };
        Dialog dialog;
        dialog.resize(w, h);
        dialog.show();
        QCOMPARE(int(dialog.windowFlags()), 2051);
        QCOMPARE(dialog.content()->geometry(), QRect(5, 25, w - 10, h - 30));
        dialog.setBorderWidth(b);
        QTRY_COMPARE(dialog.content()->geometry(), QRect(b, b + 20, w - 2 * b, h - 2 * b - 20));
        for (const auto &[name, cursor, place] : pieces) {
            auto *widget = dialog.findChild<QWidget *>(QStringLiteral("skinnedDialog") + QLatin1String(name));
            QCOMPARE(widget->geometry(), place);
            QCOMPARE(widget->cursor().shape(), cursor);
            widget->setStyleSheet(QStringLiteral("background: rgb(200, 100, 0)"));
            QVERIFY2(dialog.grab().toImage().pixelColor(place.topLeft() + QPoint(1, 1))
                         == QColor(200, 100, 0),
                     name);
        }
    }

    void borderDragResizes_data()
    {
        // From (200, 150) 400 x 300, limits 250 x 200 and 500 x 400; button 0: the left one, but nothing to resize
        addTable<Border::Position, QPoint, QRect, int>(
            {"position", "by", "expected", "button"},
            {{"top up", Border::Top, {30, -40}, {200, 110, 400, 340}, 1},
             {"left outwards", Border::Left, {-30, 40}, {170, 150, 430, 300}, 1},
             {"top left inwards", Border::TopLeft, {30, 40}, {230, 190, 370, 260}, 1},
             {"bottom right inwards", Border::BottomRight, {-30, -40}, {200, 150, 370, 260}, 1},
             {"top left below the minimum", Border::TopLeft, {300, 280}, {350, 250, 250, 200}, 1},
             {"top left beyond the maximum", Border::TopLeft, {-190, -140}, {100, 50, 500, 400}, 1},
             {"not resizable", Border::BottomRight, {30, 40}, kPlace, 0},
             {"right button", Border::BottomRight, {30, 40}, kPlace, 3}});
    }

    void borderDragResizes()
    {
        QFETCH(Border::Position, position);
        QFETCH(QPoint, by);
        QFETCH(QRect, expected);
        QFETCH(int, button);
        Dialog dialog(nullptr, button > 0);
        dialog.setMinimumSize(250, 200);
        dialog.setMaximumSize(500, 400);
        showAt(dialog, kPlace);
        const QList<Border *> borders = dialog.findChildren<Border *>();
        const auto dragged = std::find_if(borders.begin(), borders.end(), [&](const Border *border) {
            return border->position() == position;
        });
        const QPoint grip = (*dragged)->mapToGlobal((*dragged)->rect().center());

        xuser::drag(grip, grip + by, qMax(button, 1));
        QTRY_COMPARE(xuser::geometry(dialog), expected);
        // The release has ended it.
        xuser::moveMouse(grip + by + QPoint(15, 15));
        QTRY_COMPARE(QCursor::pos(), grip + by + QPoint(15, 15));
        QCOMPARE(xuser::geometry(dialog), expected);
        QCOMPARE(dialog.geometry(), expected);
    }

    void headerDragMoves()
    {
        Dialog dialog(nullptr, false);
        showAt(dialog, kPlace);
        const QRect moved = kPlace.translated(-90, 120);
        xuser::drag(kPlace.topLeft() + QPoint(100, 15), moved.topLeft() + QPoint(100, 15));
        QTRY_COMPARE(xuser::geometry(dialog), moved);
        xuser::drag(moved.topLeft() + QPoint(100, 15), {500, 500}, 3);
        xuser::doubleClick(moved.topLeft() + QPoint(100, 15));
        QCOMPARE(xuser::geometry(dialog), moved);
        QCOMPARE(dialog.geometry(), moved);
    }

    void headerDoubleClickMaximises()
    {
        Dialog dialog;
        showAt(dialog, kPlace);
        const QRect screen = dialog.screen()->availableGeometry();
        xuser::doubleClick(kPlace.topLeft() + QPoint(100, 15));
        QTRY_VERIFY(dialog.isMaximized());
        QTRY_COMPARE(xuser::geometry(dialog), screen);
        // Neither the header nor a border moves a maximised dialog.
        xuser::drag({300, 15}, {400, 200});
        xuser::drag(screen.bottomRight() - QPoint(2, 2), {600, 500});
        QCOMPARE(xuser::geometry(dialog), screen);
        xuser::doubleClick({300, 15});
        QTRY_COMPARE(xuser::geometry(dialog), kPlace);
    }

    void escapeAndCloseButton_data()
    {
        addTable<Qt::WindowModality, bool, bool>(
            {"modality", "closes", "focusInContent"},
            {{"non-modal", Qt::NonModal, true, true},
             {"modal", Qt::ApplicationModal, true, true},
             {"window modal without focus", Qt::WindowModal, true, false},
             {"refused", Qt::NonModal, false, true},
             {"refused without focus", Qt::ApplicationModal, false, false}});
    }

    void escapeAndCloseButton()
    {
        QFETCH(Qt::WindowModality, modality);
        QFETCH(bool, closes);
        QFETCH(bool, focusInContent);
        QWidget parent;
        parent.show();
        Dialog dialog(&parent);
        dialog.setEscapeCloses(closes);
        dialog.content()->setWindowModality(modality);
        if (focusInContent)
            new QLineEdit(dialog.content());
        const QSignalSpy rejected(&dialog, &QDialog::rejected);
        for (int times = 1; times <= 2; ++times) {
            dialog.show();
            QTRY_VERIFY(xuser::isManagedAndActive(dialog));
            if (times == 1)
                xuser::key(QStringLiteral("Escape"));
            else
                QTest::mouseClick(headerButtons(dialog).constLast(), Qt::LeftButton);
            QTRY_COMPARE(dialog.isVisible(), !closes);
            QVERIFY(dialog.content()->isVisibleTo(&dialog));
            QCOMPARE(rejected.count(), closes ? times : 0);
            QCOMPARE(dialog.closes, closes && modality == Qt::NonModal ? times : 0);
        }
    }

    void headerButtonsAct()
    {
        Dialog dialog;
        dialog.setStyleSheet(QStringLiteral("QPushButton { min-width: 0px; padding: 1px 3px }"));
        dialog.setShowRefresh(true);
        dialog.setTitle(QString(200, QLatin1Char('t')));
        dialog.resize(250, 150);
        dialog.show();
        const QList<QPushButton *> buttons = headerButtons(dialog);
        QCOMPARE(buttons.size(), 3);
        QVERIFY(buttons[0]->isVisible() && !buttons[1]->isVisible());
        dialog.setShowSetSize(true);
        QTRY_VERIFY(buttons[0]->x() < buttons[1]->x() && buttons[1]->x() < buttons[2]->x());
        for (QPushButton *button : buttons) {
            QVERIFY(!QAccessible::queryAccessibleInterface(button)->text(QAccessible::Name).isEmpty());
            QVERIFY(button->parentWidget()->rect().contains(button->geometry()) && button->width() >= 11);
        }
        const QSignalSpy refreshed(&dialog, &QSkinnedDialog::refresh);
        QTest::mouseClick(buttons[0], Qt::LeftButton);
        QCOMPARE(refreshed.count(), 1);
        bool asked = false;
        whenModalOpens([&](QWidget *question) { asked = question->close(); });
        QTest::mouseClick(buttons[1], Qt::LeftButton);
        QVERIFY(asked);
    }

    void titleIsElided()
    {
        const QString title = QStringLiteral("Images viewer on job beauty & shadow (12) chunk ID 7");
        Dialog dialog;
        dialog.content()->setWindowTitle(QStringLiteral("early"));
        dialog.show();
        auto *label = dialog.findChild<QHeaderLabel *>(QStringLiteral("skinnedDialogHeaderLabel"));
        QCOMPARE(label->text(), QStringLiteral("early"));
        dialog.setTitle(title);
        QCOMPARE(label->text(), title);
        QCOMPARE(dialog.content()->windowTitle(), title);
        QCOMPARE(QAccessible::queryAccessibleInterface(label)->text(QAccessible::Name), title);
        for (const int width : {900, 200, 900}) {
            dialog.resize(width, 200);
            label->grab();
            QCOMPARE(label->toolTip(), width < 900 ? title : QString());
        }
    }

    void geometryIsRemembered_data()
    {
        addTable<QString, bool>({"key", "remembered"},
                                {{"yes", QStringLiteral("Return"), true},
                                 {"closed", QStringLiteral("Escape"), false},
                                 {"the dialog goes meanwhile", QString(), false}});
    }

    void geometryIsRemembered()
    {
        QFETCH(QString, key);
        QFETCH(bool, remembered);
        const QString name = QStringLiteral("imageViewer");
        auto dialog = std::make_unique<Dialog>();
        dialog->setName(name);
        dialog->resize(320, 240);
        dialog->loadDefaultState();
        QCOMPARE(dialog->size(), QSize(320, 240));
        showAt(*dialog, kPlace);
        whenModalOpens([&](QWidget *question) {
            QCOMPARE(question->windowTitle(), product::kProductTitle);
            QTRY_VERIFY(xuser::isManagedAndActive(*question));
            if (key.isEmpty())
                dialog.reset();
            else
                xuser::key(key);
        });
        dialog.get()->setDefaults();
        QCOMPARE(QSettings().value(QStringLiteral("dialogsSizes/imageViewer/rect")).toRect(),
                 remembered ? kPlace : QRect());
        Dialog again;
        again.setName(name);
        again.loadDefaultState();
        again.show();
        QTRY_COMPARE(xuser::geometry(again) == kPlace, remembered);
    }

    void storedRectangleIsMadeUsable()
    {
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        for (const auto &[value, expected] :
             {std::pair(QVariant(screen.adjusted(-50, -60, 700, 800)), screen), {u"wide"_qs, kPlace}}) {
            QSettings().setValue(QStringLiteral("dialogsSizes/defaultSkinnedDialog/rect"), value);
            Dialog dialog;
            showAt(dialog, kPlace);
            dialog.loadDefaultState();
            QTRY_COMPARE(xuser::geometry(dialog), expected);
        }
    }
};

QTEST_MAIN(TestSkinnedDialog)
#include "tst_skinned_dialog.moc"
