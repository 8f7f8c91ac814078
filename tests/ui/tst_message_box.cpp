#include "modals.h"
#include "product.h"
#include "qskinnedmessagebox.h"
#include "xuser.h"

#include <QtGui/QAccessible>
#include <QtGui/QScreen>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyle>

#include <memory>

using Box = QSkinnedMessageBox;
using Show = Box::Button (*)(QWidget *, const QString &, const QString &, Box::Buttons);

Q_DECLARE_METATYPE(Show)

namespace {

constexpr Box::Buttons kAll =
    QMessageBox::Ok | QMessageBox::Abort | QMessageBox::Cancel | QMessageBox::No | QMessageBox::Yes;

// The buttons of the box's own row, from left to right.
QList<QPushButton *> choices(const QWidget &box)
{
    QList<QPushButton *> buttons =
        box.findChild<QDialog *>(QStringLiteral("skinnedMessageBoxContent"))->findChildren<QPushButton *>();
    std::sort(buttons.begin(), buttons.end(), [](auto *a, auto *b) { return a->x() < b->x(); });
    return buttons;
}

QStringList captions(const QWidget &box)
{
    QStringList texts;
    for (const QPushButton *button : choices(box))
        texts.append(button->text());
    return texts;
}

QLabel *label(const QWidget &box, const char *name)
{
    return box.findChild<QLabel *>(QLatin1String(name));
}

Box::Button ask(Box::Buttons buttons, QWidget *parent = nullptr)
{
    return Box::question(parent, product::kProductTitle, QStringLiteral("Continue?"), buttons);
}

} // namespace

class TestMessageBox : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void buttonsStandInTheirOrder_data();
    void buttonsStandInTheirOrder();
    void pressedButtonIsTheResult_data();
    void pressedButtonIsTheResult();
    void keyboardAnswers_data();
    void keyboardAnswers();
    void eachFunctionHasItsIcon_data();
    void eachFunctionHasItsIcon();
    void boxIsModalOnTopAndManaged();
    void textIsShownAsItStands();
    void longTextFitsTheScreen_data();
    void longTextFitsTheScreen();
    void nothingIsAnsweredWhenItGoes_data();
    void nothingIsAnsweredWhenItGoes();
};

void TestMessageBox::buttonsStandInTheirOrder_data()
{
    QTest::addColumn<Box::Buttons>("asked");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QString>("focused");
    const QString yes = QStringLiteral("Yes");
    const QString ok = QStringLiteral("Ok");
    const QString no = QStringLiteral("No");
    const QString cancel = QStringLiteral("Cancel");
    const QString abort = QStringLiteral("Abort");
    QTest::newRow("all") << kAll << QStringList{yes, no, cancel, abort, ok} << yes;
    QTest::newRow("ok and cancel") << Box::Buttons(QMessageBox::Ok | QMessageBox::Cancel)
                                   << QStringList{cancel, ok} << ok;
    QTest::newRow("none affirmative")
        << Box::Buttons(QMessageBox::Abort | QMessageBox::No) << QStringList{no, abort} << no;
    QTest::newRow("others ignored") << Box::Buttons(QMessageBox::Retry | QMessageBox::Ok | QMessageBox::Help)
                                    << QStringList{ok} << ok;
    QTest::newRow("no valid one") << Box::Buttons(QMessageBox::Retry) << QStringList{} << QString();
}

void TestMessageBox::buttonsStandInTheirOrder()
{
    QFETCH(Box::Buttons, asked);
    QFETCH(QStringList, expected);
    QFETCH(QString, focused);
    whenModalOpens([&](QWidget *box) {
        QTRY_VERIFY(xuser::isManagedAndActive(*box));
        QCOMPARE(captions(*box), expected);
        if (!expected.isEmpty()) {
            const QList<QPushButton *> buttons = choices(*box);
            const int left = buttons.constFirst()->geometry().left();
            const int right =
                buttons.constLast()->parentWidget()->width() - 1 - buttons.constLast()->geometry().right();
            QVERIFY2(qAbs(left - right) <= 1, qPrintable(QStringLiteral("%1 %2").arg(left).arg(right)));
            QVERIFY(box->focusWidget());
            QCOMPARE(qobject_cast<QPushButton *>(box->focusWidget())->text(), focused);
        }
        xuser::key(QStringLiteral("Escape"));
    });
    QCOMPARE(int(ask(asked)), 0);
}

void TestMessageBox::pressedButtonIsTheResult_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<int>("expected");
    QTest::newRow("yes") << QStringLiteral("Yes") << 0x4000;
    QTest::newRow("no") << QStringLiteral("No") << 0x10000;
    QTest::newRow("cancel") << QStringLiteral("Cancel") << 0x400000;
    QTest::newRow("abort") << QStringLiteral("Abort") << 0x40000;
    QTest::newRow("ok") << QStringLiteral("Ok") << 0x400;
    QTest::newRow("the header's close button") << QString() << 0;
}

void TestMessageBox::pressedButtonIsTheResult()
{
    QFETCH(QString, caption);
    QFETCH(int, expected);
    whenModalOpens([&](QWidget *box) {
        QTRY_VERIFY(xuser::isManagedAndActive(*box));
        QTRY_COMPARE(box->mapToGlobal(QPoint(0, 0)), xuser::geometry(*box).topLeft());
        for (const QPushButton *button : box->findChildren<QPushButton *>()) {
            if (button->isVisible() && button->text() == caption)
                xuser::moveMouse(button->mapToGlobal(button->rect().center()));
        }
        xuser::act({QStringLiteral("click"), QStringLiteral("1")});
    });
    QCOMPARE(int(ask(kAll)), expected);
}

void TestMessageBox::keyboardAnswers_data()
{
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<int>("expected");
    QTest::newRow("enter") << QStringList{QStringLiteral("Return")} << int(QMessageBox::Yes);
    QTest::newRow("keypad enter on the next")
        << QStringList{QStringLiteral("Tab"), QStringLiteral("KP_Enter")} << int(QMessageBox::No);
    QTest::newRow("space on the last")
        << QStringList{QStringLiteral("shift+Tab"), QStringLiteral("space")} << int(QMessageBox::Cancel);
    QTest::newRow("escape") << QStringList{QStringLiteral("Tab"), QStringLiteral("Escape")} << 0;
}

void TestMessageBox::keyboardAnswers()
{
    QFETCH(QStringList, keys);
    QFETCH(int, expected);
    QWidget parent;
    parent.show();
    QVERIFY(QTest::qWaitForWindowActive(&parent));
    whenModalOpens([&](QWidget *box) {
        QTRY_VERIFY(xuser::isManagedAndActive(*box));
        for (const QString &key : keys)
            xuser::key(key);
    });
    QCOMPARE(int(ask(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, &parent)), expected);
    // The keyboard is back where it was.
    QTRY_VERIFY(xuser::isManagedAndActive(parent));
}

void TestMessageBox::eachFunctionHasItsIcon_data()
{
    QTest::addColumn<Show>("show");
    QTest::addColumn<QStyle::StandardPixmap>("icon");
    QTest::newRow("information") << Show(&Box::information) << QStyle::SP_MessageBoxInformation;
    QTest::newRow("warning") << Show(&Box::warning) << QStyle::SP_MessageBoxWarning;
    QTest::newRow("critical") << Show(&Box::critical) << QStyle::SP_MessageBoxCritical;
    QTest::newRow("question") << Show(&Box::question) << QStyle::SP_MessageBoxQuestion;
}

void TestMessageBox::eachFunctionHasItsIcon()
{
    QFETCH(Show, show);
    QFETCH(QStyle::StandardPixmap, icon);
    QImage shown;
    whenModalOpens([&](QWidget *box) {
        shown = label(*box, "skinnedMessageBoxIcon")->pixmap().toImage();
        box->close();
    });
    show(nullptr, product::kProductTitle, QStringLiteral("Text"), QMessageBox::Ok);
    const int size = qApp->style()->pixelMetric(QStyle::PM_MessageBoxIconSize);
    const QImage expected = qApp->style()->standardIcon(icon).pixmap(size, size).toImage();
    QVERIFY(!expected.isNull());
    QCOMPARE(shown, expected);
}

void TestMessageBox::boxIsModalOnTopAndManaged()
{
    QWidget parent;
    parent.setGeometry(500, 300, 500, 400);
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    whenModalOpens([&](QWidget *box) {
        QCOMPARE(int(box->windowFlags()), 0x40C03);
        QCOMPARE(box->windowModality(), Qt::ApplicationModal);
        QTRY_VERIFY(xuser::isManagedAndActive(*box));
        const QString id = QString::number(box->winId());
        QVERIFY(
            xuser::ask(QStringLiteral("xprop"), {QStringLiteral("-id"), id, QStringLiteral("_NET_WM_STATE")})
                .contains(QLatin1String("_NET_WM_STATE_ABOVE")));
        const QPoint off = xuser::geometry(*box).center() - parent.geometry().center();
        QVERIFY2(off.manhattanLength() <= 40, qPrintable(QStringLiteral("%1 %2").arg(off.x()).arg(off.y())));
        box->close();
    });
    ask(QMessageBox::Ok, &parent);
}

void TestMessageBox::textIsShownAsItStands()
{
    const QString text = QStringLiteral("<b>Cannot open</b> output folder\n/farm/a & b");
    whenModalOpens([&](QWidget *box) {
        const QLabel *shown = label(*box, "skinnedMessageBoxText");
        const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(
            box->findChild<QLabel *>(QStringLiteral("skinnedMessageBoxText")));
        QCOMPARE(accessible->role(), QAccessible::StaticText);
        QCOMPARE(accessible->text(QAccessible::Name), text);
        QCOMPARE(shown->size().expandedTo(shown->sizeHint()), shown->size());
        QLabel plain(text);
        plain.setTextFormat(Qt::PlainText);
        QCOMPARE(shown->sizeHint(), plain.sizeHint());
        box->close();
    });
    Box::warning(nullptr, product::kProductTitle, text, QMessageBox::Ok);
}

void TestMessageBox::longTextFitsTheScreen_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("lines") << QStringLiteral("One of very many lines\n").repeated(2000);
    QTest::newRow("a word") << QString(5000, QLatin1Char('w'));
}

void TestMessageBox::longTextFitsTheScreen()
{
    QFETCH(QString, text);
    whenModalOpens([&](QWidget *box) {
        QTRY_VERIFY(xuser::isManagedAndActive(*box));
        const QRect screen = box->screen()->availableGeometry();
        QVERIFY(screen.contains(xuser::geometry(*box)));
        const QPushButton *ok = choices(*box).constFirst();
        QVERIFY(screen.contains(QRect(ok->mapToGlobal(QPoint(0, 0)), ok->size())));
        // All of it can be reached, by keys too.
        const auto *area = box->findChild<QScrollArea *>();
        QVERIFY(area->verticalScrollBar()->maximum() > 0 || area->horizontalScrollBar()->maximum() > 0);
        xuser::key(QStringLiteral("Tab"));
        QTRY_VERIFY(area->hasFocus());
        xuser::key(QStringLiteral("Escape"));
    });
    Box::critical(nullptr, product::kProductTitle, text, QMessageBox::Ok);
}

void TestMessageBox::nothingIsAnsweredWhenItGoes_data()
{
    QTest::addColumn<bool>("withParent");
    QTest::newRow("its parent") << true;
    QTest::newRow("itself") << false;
}

void TestMessageBox::nothingIsAnsweredWhenItGoes()
{
    QFETCH(bool, withParent);
    auto parent = std::make_unique<QWidget>();
    parent->show();
    bool gone = false;
    whenModalOpens([&](QWidget *box) {
        connect(box, &QObject::destroyed, box, [&] { gone = true; });
        if (withParent)
            parent.reset();
        else
            delete box;
    });
    QCOMPARE(int(ask(kAll, parent.get())), 0);
    QVERIFY(gone);
}

QTEST_MAIN(TestMessageBox)
#include "tst_message_box.moc"
