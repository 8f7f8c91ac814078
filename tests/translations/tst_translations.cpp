#include "jobframes.h"
#include "table.h"

#include <notify/menus.h>
#include <notify/preferences.h>
#include <ui/language.h>
#include <ui/look.h>
#include <viewer/frames/cachetotals.h>
#include <viewer/imageviewer.h>
#include <viewer/session/viewersession.h>

#include <QtCore/QTranslator>
#include <QtGui/QScreen>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QScrollArea>

class TranslationsTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_look = std::make_unique<Look>(*qApp); }
    void cleanup()
    {
        qDeleteAll(qApp->findChildren<QTranslator *>());
        QApplication::setFont(QFont(QStringLiteral("Lato")));
    }

    void languageIsChosen_data()
    {
        addTable<QByteArray, bool, QByteArray>({"codes", "known", "quit"},
                                               {{"a country's", "de_AT", true, "&Beenden"},
                                                {"the first known", "sv de fr", true, "&Beenden"},
                                                {"English first", "en-GB de", true, "&Quit"},
                                                {"none known", "sv nb", false, "&Quit"},
                                                {"no language", "../de", true, "&Quit"}});
    }
    void languageIsChosen()
    {
        QFETCH(QByteArray, codes);
        QTEST(installFirstLanguage(QString::fromLatin1(codes).split(QLatin1Char(' '))), "known");
        QTEST(TrayMenu(nullptr).quit->text().toLatin1(), "quit");
    }

    void everyLanguage_data()
    {
        addTable<int>({"none"},
                      {{"de", 0}, {"es", 0}, {"fr", 0}, {"it", 0}, {"ja", 0}, {"ko", 0}, {"zh_CN", 0}});
    }
    /// Its mnemonics are unique and its texts are shown whole.
    void everyLanguage()
    {
        QVERIFY(installLanguage(QString::fromLatin1(QTest::currentDataTag())));
        TrayMenu tray(nullptr);
        ListMenu list(nullptr);
        for (const QMenu *menu : {static_cast<QMenu *>(&tray), static_cast<QMenu *>(&list)}) {
            QHash<QString, QString> owners;
            for (const QAction *action : menu->actions()) {
                const QString key = QKeySequence::mnemonic(action->text()).toString();
                QVERIFY2(key.isEmpty() || !owners.contains(key),
                         qPrintable(owners.value(key) + QStringLiteral(" / ") + action->text()));
                owners.insert(key, action->text());
            }
        }

        preferences dialog(nullptr);
        auto *pages = dialog.findChild<QListWidget *>();
        for (int page = 0; page < pages->count(); ++page) {
            pages->setCurrentRow(page);
            showsTextsWhole(dialog);
        }

        // At its first size, with all rows, on the desktop's text size and a larger one.
        const QFont font = QApplication::font();
        for (const double scale : {1.0, 1.5}) {
            QFont scaled = font;
            scaled.setPointSizeF(font.pointSizeF() * scale);
            QApplication::setFont(scaled);
            CacheTotals totals;
            ImageViewer viewer(totals, {});
            viewer.setJob({jobOf(1001, 1009), {}, {chunkOf(1, 1001, 1004)}});
            viewer.setFramesPath({.path = "/no/shot.####.exr", .maskIsSequence = true});
            showsTextsWhole(viewer);
            QCOMPARE(viewer.size(), QSize(640, 480));
            viewer.findChild<QAbstractButton *>(QStringLiteral("calibrationButton"))->click();
            showsTextsWhole(viewer);
            QCOMPARE(viewer.size(), QSize(640, 480));
        }
    }

private:
    static void showsTextsWhole(QWidget &window)
    {
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCoreApplication::processEvents();
        for (const QWidget *widget : window.findChildren<QWidget *>()) {
            const auto *label = qobject_cast<const QLabel *>(widget);
            const bool hasText =
                label ? !label->text().isEmpty() : bool(qobject_cast<const QAbstractButton *>(widget));
            if (!widget->isVisible() || !hasText)
                continue;
            const int height = label && label->wordWrap() ? label->heightForWidth(widget->width())
                                                          : widget->minimumSizeHint().height();
            QVERIFY2(widget->width() >= widget->minimumSizeHint().width() && widget->height() >= height,
                     qPrintable(widget->objectName()));
            const QWidget *around = widget->parentWidget();
            QVERIFY2(around->rect().contains(widget->geometry()), qPrintable(widget->objectName()));
            for (const QWidget *other : around->findChildren<QWidget *>(Qt::FindDirectChildrenOnly))
                QVERIFY2(other == widget || other->isHidden() || other->isWindow()
                             || !other->geometry().intersects(widget->geometry()),
                         qPrintable(widget->objectName() + u' ' + other->objectName()));
        }
        for (const QScrollArea *area : window.findChildren<QScrollArea *>())
            QVERIFY2(!area->isVisible() || area->widget()->width() <= area->viewport()->width(),
                     qPrintable(area->objectName()));
    }

    std::unique_ptr<Look> m_look;
};

QTEST_MAIN(TranslationsTest)
#include "tst_translations.moc"
