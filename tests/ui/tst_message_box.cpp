#include "modals.h"
#include "table.h"
#include "xuser.h"

#include <ui/product.h>
#include <ui/qskinnedmessagebox.h>

#include <QtGui/QAccessible>
#include <QtGui/QScreen>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>

#include <memory>

using Box = QSkinnedMessageBox;

namespace {

constexpr Box::Buttons kAll =
    QMessageBox::Ok | QMessageBox::Abort | QMessageBox::Cancel | QMessageBox::No | QMessageBox::Yes;

// The buttons of the box's own row, from left to right.
QList<QPushButton *> choices(const QWidget &box)
{
    auto buttons =
        box.findChild<QDialog *>(QStringLiteral("skinnedMessageBoxContent"))->findChildren<QPushButton *>();
    std::sort(buttons.begin(), buttons.end(), [](auto *a, auto *b) { return a->x() < b->x(); });
    return buttons;
}

QLabel *textOf(const QWidget &box)
{
    return box.findChild<QLabel *>(QStringLiteral("skinnedMessageBoxText"));
}

int ask(Box::Buttons buttons, QWidget *parent = nullptr)
{
    return Box::question(parent, product::kProductTitle, QStringLiteral("Continue?"), buttons);
}

} // namespace

class TestMessageBox : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void buttonsStandInTheirOrder_data()
    {
        addTable<Box::Buttons, QString, QString>(
            {"asked", "expected", "focused"},
            {{"all", kAll, u"Yes No Cancel Abort Ok"_qs, u"Yes"_qs},
             {"ok and cancel", QMessageBox::Ok | QMessageBox::Cancel, u"Cancel Ok"_qs, u"Ok"_qs},
             {"others ignored", QMessageBox::Retry | QMessageBox::Ok, u"Ok"_qs, u"Ok"_qs},
             {"no valid one", QMessageBox::Retry, {}, {}}});
    }

    void buttonsStandInTheirOrder()
    {
        QFETCH(Box::Buttons, asked);
        QFETCH(QString, expected);
        QFETCH(QString, focused);
        whenModalOpens([&](QWidget *box) {
            QTRY_VERIFY(xuser::isManagedAndActive(*box));
            const QList<QPushButton *> buttons = choices(*box);
            QStringList captions;
            for (const QPushButton *button : buttons)
                captions.append(button->text().remove(QLatin1Char('&')));
            QCOMPARE(captions.join(QLatin1Char(' ')), expected);
            if (!buttons.isEmpty()) {
                const int right = buttons.constLast()->parentWidget()->rect().right();
                QVERIFY(qAbs(buttons[0]->x() - (right - buttons.constLast()->geometry().right())) <= 1);
                QVERIFY(box->focusWidget());
                QCOMPARE(qobject_cast<QPushButton *>(box->focusWidget())->text().remove(QLatin1Char('&')),
                         focused);
            }
            xuser::key(QStringLiteral("Escape"));
        });
        QCOMPARE(ask(asked), 0);
    }

    void keyboardAnswers_data()
    {
        addTable<QString, int>({"keys", "expected"},
                               {{"enter", u"Return"_qs, 0x4000},
                                {"keypad enter on the next", u"Tab KP_Enter"_qs, 0x10000},
                                {"space on the last", u"shift+Tab space"_qs, 0x400},
                                {"the letter of a button", u"alt+a"_qs, 0x40000},
                                {"escape", u"Tab Escape"_qs, 0}});
    }

    void keyboardAnswers()
    {
        QFETCH(QString, keys);
        QWidget parent;
        parent.show();
        whenModalOpens([&](QWidget *box) {
            QTRY_VERIFY(xuser::isManagedAndActive(*box));
            xuser::key(keys);
        });
        QTEST(ask(kAll, &parent), "expected");
        // The keyboard is back where it was.
        QTRY_VERIFY(xuser::isManagedAndActive(parent));
    }

    void enterSaysNoWhereThereIsMuchToLose()
    {
        whenModalOpens([](QWidget *box) {
            QTRY_VERIFY(xuser::isManagedAndActive(*box));
            xuser::key(QStringLiteral("Return"));
        });
        QVERIFY(!Box::confirm(nullptr, product::kProductTitle, QStringLiteral("Clear?")));
        whenModalOpens([](QWidget *box) {
            QTRY_VERIFY(xuser::isManagedAndActive(*box));
            xuser::key(QStringLiteral("alt+y"));
        });
        QVERIFY(Box::confirm(nullptr, product::kProductTitle, QStringLiteral("Clear?")));
    }

    void eachFunctionHasItsIcon()
    {
        const std::pair<decltype(&Box::question), QStyle::StandardPixmap> kinds[] = {
            {&Box::information, QStyle::SP_MessageBoxInformation},
            {&Box::warning, QStyle::SP_MessageBoxWarning},
            {&Box::critical, QStyle::SP_MessageBoxCritical},
            {&Box::question, QStyle::SP_MessageBoxQuestion}};
        const int size = qApp->style()->pixelMetric(QStyle::PM_MessageBoxIconSize);
        for (const auto &[show, icon] : kinds) {
            QImage shown;
            whenModalOpens([&](QWidget *box) {
                shown = box->findChild<QLabel *>(u"skinnedMessageBoxIcon"_qs)->pixmap().toImage();
                box->close();
            });
            show(nullptr, product::kProductTitle, u"Text"_qs, QMessageBox::Ok);
            QVERIFY(!shown.isNull());
            QCOMPARE(shown, qApp->style()->standardIcon(icon).pixmap(size, size).toImage());
        }
    }

    void textIsShownAsItStands()
    {
        const QString text = QStringLiteral("<b>Cannot open</b> output folder\n/farm/a & b");
        whenModalOpens([&](QWidget *box) {
            QTRY_VERIFY(xuser::isManagedAndActive(*box));
            QLabel *shown = textOf(*box);
            const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(shown);
            QCOMPARE(accessible->role(), QAccessible::StaticText);
            QCOMPARE(accessible->text(QAccessible::Name), text);
            // Two lines, in full view.
            QCOMPARE(shown->visibleRegion().boundingRect().size(), shown->size());
            QCOMPARE(shown->height() / shown->fontMetrics().height(), 2);
            box->close();
        });
        Box::warning(nullptr, product::kProductTitle, text, QMessageBox::Ok);
    }

    void longTextFitsTheScreen()
    {
        for (const QString &text :
             {QStringLiteral("One of very many lines\n").repeated(2000), QString(5000, QLatin1Char('w'))}) {
            whenModalOpens([&](QWidget *box) {
                QTRY_VERIFY(xuser::isManagedAndActive(*box));
                QVERIFY(box->screen()->availableGeometry().contains(xuser::geometry(*box)));
                const QPushButton *ok = choices(*box).constFirst();
                QCOMPARE(ok->visibleRegion().boundingRect(), ok->rect());
                // The rest is reached by the keyboard.
                const QRect before = textOf(*box)->geometry();
                xuser::key(QStringLiteral("Tab Down Right"));
                QTRY_VERIFY(textOf(*box)->geometry() != before);
                xuser::key(QStringLiteral("Escape"));
            });
            Box::critical(nullptr, product::kProductTitle, text, QMessageBox::Ok);
        }
    }

    void nothingIsAnsweredWhenItGoes()
    {
        for (const bool withParent : {true, false}) {
            auto parent = std::make_unique<QWidget>();
            whenModalOpens([&](QWidget *box) {
                if (withParent)
                    parent.reset();
                else
                    delete box;
            });
            QCOMPARE(ask(kAll, parent.get()), 0);
            QVERIFY(!QApplication::activeModalWidget());
        }
    }
};

QTEST_MAIN(TestMessageBox)
#include "tst_message_box.moc"
