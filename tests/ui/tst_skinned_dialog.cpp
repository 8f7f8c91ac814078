#include "modals.h"
#include "product.h"
#include "qheaderlabel.h"
#include "qskinneddialog.h"
#include "qskinneddialogborder.h"
#include "qskinneddialogheader.h"
#include "xuser.h"

#include <QtCore/QPointer>
#include <QtCore/QSettings>
#include <QtCore/QTimer>
#include <QtGui/QAccessible>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
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

QWidget *piece(const QWidget &dialog, const char *name)
{
    return dialog.findChild<QWidget *>(QLatin1String(name));
}

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

QRect stored(const QString &name)
{
    return QSettings().value(QStringLiteral("dialogsSizes/") + name + QStringLiteral("/rect")).toRect();
}

} // namespace

class TestSkinnedDialog : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { QSettings().clear(); }

    void piecesLieRoundTheContent_data();
    void piecesLieRoundTheContent();
    void styleSheetPaintsThePieces();
    void windowManagerGivesTheKeyboard();
    void borderDragResizes_data();
    void borderDragResizes();
    void headerDragMoves();
    void headerDoubleClickMaximises_data();
    void headerDoubleClickMaximises();
    void escapeAndCloseButton_data();
    void escapeAndCloseButton();
    void headerButtonsAct();
    void titleIsElided();
    void contentDecidesModality_data();
    void contentDecidesModality();
    void unskinnedDialogKeepsThePlatformFrame();
    void geometryIsRemembered();
    void storedRectangleIsMadeUsable_data();
    void storedRectangleIsMadeUsable();
    void confirmationDecides_data();
    void confirmationDecides();
    void dialogMayGoWhileItAsks();
    void firstShowFitsTheScreen();
};

void TestSkinnedDialog::initTestCase()
{
    QCoreApplication::setOrganizationName(product::kOrganisation);
    QCoreApplication::setApplicationName(product::kApplicationName);
}

void TestSkinnedDialog::piecesLieRoundTheContent_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("default width") << 5;
    QTest::newRow("wide") << 9;
    QTest::newRow("none") << 0;
}

void TestSkinnedDialog::piecesLieRoundTheContent()
{
    QFETCH(int, width);
    Dialog dialog;
    if (width != 5)
        dialog.setBorderWidth(width);
    dialog.resize(400, 300);
    dialog.show();
    QCOMPARE(int(dialog.windowFlags()), 2051);

    const int w = 400;
    const int h = 300;
    const int b = width;
    const struct {
        const char *name;
        Qt::CursorShape cursor;
        QRect place;
    } expected[] = {
        {"skinnedDialogTopBorder", Qt::SizeVerCursor, {b, 0, w - 2 * b, b}},
        {"skinnedDialogBottomBorder", Qt::SizeVerCursor, {b, h - b, w - 2 * b, b}},
        {"skinnedDialogLeftBorder", Qt::SizeHorCursor, {0, b, b, h - 2 * b}},
        {"skinnedDialogRightBorder", Qt::SizeHorCursor, {w - b, b, b, h - 2 * b}},
        {"skinnedDialogTopLeftBorder", Qt::SizeFDiagCursor, {0, 0, b, b}},
        {"skinnedDialogTopRightBorder", Qt::SizeBDiagCursor, {w - b, 0, b, b}},
        {"skinnedDialogBottomLeftBorder", Qt::SizeBDiagCursor, {0, h - b, b, b}},
        {"skinnedDialogBottomRightBorder", Qt::SizeFDiagCursor, {w - b, h - b, b, b}},
    };
    for (const auto &border : expected) {
        QCOMPARE(piece(dialog, border.name)->geometry(), border.place);
        QCOMPARE(piece(dialog, border.name)->cursor().shape(), border.cursor);
    }
    QCOMPARE(piece(dialog, "skinnedDialogHeader")->geometry(), QRect(b, b, w - 2 * b, 20));
    QCOMPARE(dialog.content()->geometry(), QRect(b, b + 20, w - 2 * b, h - 2 * b - 20));
}

void TestSkinnedDialog::styleSheetPaintsThePieces()
{
    static const char *const kPieces[] = {
        "skinnedDialogTopBorder",        "skinnedDialogBottomBorder",      "skinnedDialogLeftBorder",
        "skinnedDialogRightBorder",      "skinnedDialogTopLeftBorder",     "skinnedDialogTopRightBorder",
        "skinnedDialogBottomLeftBorder", "skinnedDialogBottomRightBorder", "skinnedDialogHeader",
        "skinnedDialogHeaderLabel",      "skinnedDialogCloseButton"};
    QString sheet;
    int shade = 0;
    for (const char *name : kPieces)
        sheet += QStringLiteral("#%1 { background: rgb(200, %2, 0); border: none; }")
                     .arg(QLatin1String(name))
                     .arg(++shade);
    Dialog dialog;
    dialog.setStyleSheet(sheet);
    dialog.resize(300, 200);
    dialog.show();
    const QImage image = dialog.grab().toImage();
    shade = 0;
    for (const char *name : kPieces) {
        // The last of a name is the close button, the only one of the three in sight.
        const QWidget *painted = dialog.findChildren<QWidget *>(QLatin1String(name)).constLast();
        const QPoint corner = painted->mapTo(&dialog, QPoint(1, 1));
        QVERIFY2(image.pixelColor(corner) == QColor(200, ++shade, 0), name);
    }
}

void TestSkinnedDialog::windowManagerGivesTheKeyboard()
{
    QWidget parent;
    parent.show();
    QVERIFY(QTest::qWaitForWindowActive(&parent));
    Dialog dialog(&parent);
    auto *edit = new QLineEdit(dialog.content());
    dialog.show();
    QTRY_VERIFY(xuser::isManagedAndActive(dialog));
    xuser::type(QStringLiteral("frame"));
    QTRY_COMPARE(edit->text(), QStringLiteral("frame"));

    dialog.hide();
    QTRY_VERIFY(xuser::isManagedAndActive(parent));
    dialog.show();
    QTRY_VERIFY(xuser::isManagedAndActive(dialog));
}

void TestSkinnedDialog::borderDragResizes_data()
{
    QTest::addColumn<Border::Position>("position");
    QTest::addColumn<QPoint>("by");
    QTest::addColumn<QRect>("expected");
    QTest::addColumn<bool>("resizable");
    QTest::addColumn<int>("button");
    const auto row = [](const char *name, Border::Position position, QPoint by, QRect expected) {
        QTest::newRow(name) << position << by << expected << true << 1;
    };
    // From (200, 150) 400 x 300, limits 250 x 200 and 500 x 400.
    row("top up", Border::Top, {30, -40}, {200, 110, 400, 340});
    row("bottom down", Border::Bottom, {30, 40}, {200, 150, 400, 340});
    row("left outwards", Border::Left, {-30, 40}, {170, 150, 430, 300});
    row("right inwards", Border::Right, {-30, 40}, {200, 150, 370, 300});
    row("top left inwards", Border::TopLeft, {30, 40}, {230, 190, 370, 260});
    row("top right outwards", Border::TopRight, {30, -40}, {200, 110, 430, 340});
    row("bottom left outwards", Border::BottomLeft, {-30, 40}, {170, 150, 430, 340});
    row("bottom right inwards", Border::BottomRight, {-30, -40}, {200, 150, 370, 260});
    row("top left below the minimum", Border::TopLeft, {300, 280}, {350, 250, 250, 200});
    row("top left beyond the maximum", Border::TopLeft, {-190, -140}, {100, 50, 500, 400});
    row("left past the right edge", Border::Left, {500, 0}, {350, 150, 250, 300});
    row("bottom right beyond the maximum", Border::BottomRight, {300, 200}, {200, 150, 500, 400});
    row("top, only sideways", Border::Top, {60, 0}, kPlace);
    QTest::newRow("not resizable") << Border::BottomRight << QPoint(30, 40) << kPlace << false << 1;
    QTest::newRow("right button") << Border::BottomRight << QPoint(30, 40) << kPlace << true << 3;
}

void TestSkinnedDialog::borderDragResizes()
{
    QFETCH(Border::Position, position);
    QFETCH(QPoint, by);
    QFETCH(QRect, expected);
    QFETCH(bool, resizable);
    QFETCH(int, button);
    Dialog dialog(nullptr, resizable);
    dialog.setMinimumSize(250, 200);
    dialog.setMaximumSize(500, 400);
    showAt(dialog, kPlace);
    const QList<Border *> borders = dialog.findChildren<Border *>();
    const auto dragged = std::find_if(borders.begin(), borders.end(),
                                      [&](const Border *border) { return border->position() == position; });
    const QPoint grip = (*dragged)->mapToGlobal((*dragged)->rect().center());

    xuser::drag(grip, grip + by, button);
    QTRY_COMPARE(xuser::geometry(dialog), expected);
    QCOMPARE(dialog.geometry(), expected);

    // The release has ended it.
    xuser::moveMouse(grip + by + QPoint(15, 15));
    QTRY_COMPARE(QCursor::pos(), grip + by + QPoint(15, 15));
    QCOMPARE(xuser::geometry(dialog), expected);
}

void TestSkinnedDialog::headerDragMoves()
{
    Dialog dialog(nullptr, false);
    showAt(dialog, kPlace);
    const QPoint grip = kPlace.topLeft() + QPoint(100, 15);
    xuser::drag(grip, grip + QPoint(-90, 120));
    QTRY_COMPARE(xuser::geometry(dialog), kPlace.translated(-90, 120));
    QCOMPARE(dialog.geometry(), kPlace.translated(-90, 120));
    xuser::drag(grip + QPoint(-90, 120), grip + QPoint(300, 40), 3);
    QCOMPARE(xuser::geometry(dialog), kPlace.translated(-90, 120));
}

void TestSkinnedDialog::headerDoubleClickMaximises_data()
{
    QTest::addColumn<bool>("resizable");
    QTest::newRow("resizable") << true;
    QTest::newRow("fixed") << false;
}

void TestSkinnedDialog::headerDoubleClickMaximises()
{
    QFETCH(bool, resizable);
    Dialog dialog(nullptr, resizable);
    showAt(dialog, kPlace);
    const QStringList doubleClick{QStringLiteral("click"),   QStringLiteral("--repeat"), QStringLiteral("2"),
                                  QStringLiteral("--delay"), QStringLiteral("50"),       QStringLiteral("1")};
    xuser::moveMouse(kPlace.topLeft() + QPoint(100, 15));
    xuser::act(doubleClick);
    if (!resizable) {
        QVERIFY(!dialog.isMaximized());
        QCOMPARE(xuser::geometry(dialog), kPlace);
        return;
    }
    QTRY_VERIFY(dialog.isMaximized());
    QTRY_COMPARE(xuser::geometry(dialog), dialog.screen()->availableGeometry());

    // Neither the header nor a border moves a maximised dialog.
    xuser::drag({300, 15}, {400, 200});
    xuser::drag(dialog.geometry().bottomRight() - QPoint(2, 2), {600, 500});
    QCOMPARE(xuser::geometry(dialog), dialog.screen()->availableGeometry());

    xuser::moveMouse({300, 15});
    xuser::act(doubleClick);
    QTRY_COMPARE(xuser::geometry(dialog), kPlace);
}

void TestSkinnedDialog::escapeAndCloseButton_data()
{
    QTest::addColumn<Qt::WindowModality>("modality");
    QTest::addColumn<bool>("closes");
    QTest::addColumn<bool>("focusInContent");
    QTest::newRow("non-modal") << Qt::NonModal << true << true;
    QTest::newRow("non-modal without focus") << Qt::NonModal << true << false;
    QTest::newRow("modal") << Qt::ApplicationModal << true << true;
    QTest::newRow("window modal without focus") << Qt::WindowModal << true << false;
    QTest::newRow("refused") << Qt::NonModal << false << true;
    QTest::newRow("refused without focus") << Qt::ApplicationModal << false << false;
}

void TestSkinnedDialog::escapeAndCloseButton()
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
    const int closesExpected = closes && modality == Qt::NonModal ? 1 : 0;

    const auto check = [&](int times) {
        if (closes)
            QTRY_VERIFY(!dialog.isVisible());
        QCOMPARE(dialog.isVisible(), !closes);
        QVERIFY(dialog.content()->isVisibleTo(&dialog));
        QCOMPARE(rejected.count(), closes ? times : 0);
        QCOMPARE(dialog.closes, times * closesExpected);
    };
    dialog.show();
    QTRY_VERIFY(xuser::isManagedAndActive(dialog));
    xuser::key(QStringLiteral("Escape"));
    check(1);
    dialog.show();
    QTest::mouseClick(headerButtons(dialog).constLast(), Qt::LeftButton);
    check(2);
}

void TestSkinnedDialog::headerButtonsAct()
{
    Dialog dialog;
    dialog.setShowRefresh(true);
    dialog.show();
    const QList<QPushButton *> buttons = headerButtons(dialog);
    QCOMPARE(buttons.size(), 3);
    QVERIFY(buttons[0]->isVisible());
    QVERIFY(!buttons[1]->isVisible());
    dialog.setShowSetSize(true);
    QTRY_VERIFY(buttons[0]->x() < buttons[1]->x() && buttons[1]->x() < buttons[2]->x());
    for (QPushButton *button : buttons) {
        const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(button);
        QCOMPARE(accessible->role(), QAccessible::PushButton);
        QVERIFY(!accessible->text(QAccessible::Name).isEmpty());
        QVERIFY(button->parentWidget()->rect().contains(button->geometry()));
    }

    const QSignalSpy refreshed(&dialog, &QSkinnedDialog::refresh);
    QTest::mouseClick(buttons[0], Qt::LeftButton);
    QCOMPARE(refreshed.count(), 1);
    bool asked = false;
    whenModalOpens([&](QWidget *question) {
        asked = true;
        question->close();
    });
    QTest::mouseClick(buttons[1], Qt::LeftButton);
    QVERIFY(asked);
    dialog.setShowRefresh(false);
    QVERIFY(!buttons[0]->isVisible());
}

void TestSkinnedDialog::titleIsElided()
{
    const QString title = QStringLiteral("Images viewer on job beauty & shadow (12) chunk ID 7");
    Dialog dialog;
    dialog.content()->setWindowTitle(QStringLiteral("early"));
    dialog.resize(900, 200);
    dialog.show();
    auto *label = dialog.findChild<QHeaderLabel *>(QStringLiteral("skinnedDialogHeaderLabel"));
    QCOMPARE(label->text(), QStringLiteral("early"));
    dialog.setTitle(title);
    QCOMPARE(label->text(), title);
    QCOMPARE(dialog.content()->windowTitle(), title);
    QCOMPARE(dialog.windowTitle(), title);
    QCOMPARE(QAccessible::queryAccessibleInterface(label)->text(QAccessible::Name), title);

    label->grab();
    QVERIFY(label->toolTip().isEmpty());
    dialog.resize(200, 200);
    label->grab();
    QCOMPARE(label->toolTip(), title);
    dialog.resize(900, 200);
    label->grab();
    QVERIFY(label->toolTip().isEmpty());
}

void TestSkinnedDialog::contentDecidesModality_data()
{
    QTest::addColumn<Qt::WindowModality>("content");
    QTest::addColumn<bool>("executed");
    QTest::addColumn<Qt::WindowModality>("expected");
    QTest::newRow("non-modal") << Qt::NonModal << false << Qt::NonModal;
    QTest::newRow("window modal") << Qt::WindowModal << false << Qt::WindowModal;
    QTest::newRow("application modal") << Qt::ApplicationModal << false << Qt::ApplicationModal;
    QTest::newRow("non-modal, executed") << Qt::NonModal << true << Qt::ApplicationModal;
}

void TestSkinnedDialog::contentDecidesModality()
{
    QFETCH(Qt::WindowModality, content);
    QFETCH(bool, executed);
    QFETCH(Qt::WindowModality, expected);
    QWidget parent;
    Dialog dialog(&parent);
    dialog.content()->setWindowModality(content);
    Qt::WindowModality seen = Qt::NonModal;
    if (executed) {
        QTimer::singleShot(0, &dialog, [&] {
            seen = dialog.windowHandle()->modality();
            dialog.mayClose();
        });
        QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    } else {
        dialog.show();
        seen = dialog.windowHandle()->modality();
    }
    QCOMPARE(seen, expected);
    QCOMPARE(dialog.content()->windowModality(), Qt::NonModal);
}

void TestSkinnedDialog::unskinnedDialogKeepsThePlatformFrame()
{
    Dialog dialog;
    dialog.setSkinned(false);
    dialog.setTitle(QStringLiteral("Plain"));
    dialog.resize(300, 200);
    dialog.show();
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Plain"));
    QVERIFY(!(dialog.windowFlags() & Qt::FramelessWindowHint));
    QVERIFY(!piece(dialog, "skinnedDialogHeader"));
    QCOMPARE(dialog.content()->geometry(), dialog.rect());
}

void TestSkinnedDialog::geometryIsRemembered()
{
    const QString name = QStringLiteral("imageViewer");
    {
        Dialog dialog;
        dialog.resize(320, 240);
        dialog.setName(name);
        dialog.loadDefaultState();
        QCOMPARE(dialog.size(), QSize(320, 240));
        showAt(dialog, kPlace);
        dialog.setDefaultState(false);
        QCOMPARE(stored(name), kPlace);
    }
    Dialog again;
    again.setName(name);
    again.loadDefaultState();
    again.show();
    QTRY_COMPARE(xuser::geometry(again), kPlace);
    Dialog nameless;
    nameless.setGeometry(kPlace);
    nameless.setDefaultState(false);
    QCOMPARE(stored(QStringLiteral("defaultSkinnedDialog")), kPlace);
}

void TestSkinnedDialog::storedRectangleIsMadeUsable_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QRect>("expected");
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QTest::newRow("on a screen that is gone")
        << QVariant(kPlace.translated(5000, -4000))
        << QRect(QPoint(screen.right() - kPlace.width() + 1, screen.top()), kPlace.size());
    QTest::newRow("larger than the screen") << QVariant(screen.adjusted(-50, -60, 700, 800)) << screen;
    QTest::newRow("left beyond right") << QVariant(QRect(QPoint(300, 100), QPoint(200, 400))) << kPlace;
    QTest::newRow("no rectangle") << QVariant(QStringLiteral("wide")) << kPlace;
}

void TestSkinnedDialog::storedRectangleIsMadeUsable()
{
    QFETCH(QVariant, value);
    QFETCH(QRect, expected);
    QSettings().setValue(QStringLiteral("dialogsSizes/defaultSkinnedDialog/rect"), value);
    Dialog dialog;
    showAt(dialog, kPlace);
    dialog.loadDefaultState();
    QTRY_COMPARE(xuser::geometry(dialog), expected);
}

void TestSkinnedDialog::confirmationDecides_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("yes") << QStringLiteral("Return") << kPlace;
    QTest::newRow("closed") << QStringLiteral("Escape") << QRect();
}

void TestSkinnedDialog::confirmationDecides()
{
    QFETCH(QString, key);
    QFETCH(QRect, expected);
    Dialog dialog;
    dialog.setName(QStringLiteral("asked"));
    showAt(dialog, kPlace);
    whenModalOpens([&](QWidget *question) {
        QCOMPARE(question->windowTitle(), QStringLiteral("Tarrow 9.0.14"));
        QTRY_VERIFY(xuser::isManagedAndActive(*question));
        xuser::key(key);
    });
    dialog.setDefaults();
    QCOMPARE(stored(QStringLiteral("asked")), expected);
}

void TestSkinnedDialog::dialogMayGoWhileItAsks()
{
    auto dialog = std::make_unique<Dialog>();
    Dialog *asking = dialog.get();
    asking->setName(QStringLiteral("gone"));
    whenModalOpens([&](QWidget *) { dialog.reset(); });
    asking->setDefaultState(true);
    QVERIFY(!dialog);
    QCOMPARE(stored(QStringLiteral("gone")), QRect());
}

void TestSkinnedDialog::firstShowFitsTheScreen()
{
    Dialog dialog;
    dialog.resize(5000, 4000);
    dialog.show();
    const QRect screen = dialog.screen()->availableGeometry();
    QTRY_COMPARE(xuser::geometry(dialog), screen);
    dialog.hide();
    dialog.setGeometry(kPlace.translated(9000, 0));
    dialog.show();
    QTRY_VERIFY(screen.contains(xuser::geometry(dialog)));
}

QTEST_MAIN(TestSkinnedDialog)
#include "tst_skinned_dialog.moc"
