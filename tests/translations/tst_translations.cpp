#include "table.h"

#include <notify/menus.h>
#include <notify/preferences.h>
#include <ui/language.h>
#include <ui/look.h>
#include <viewer/frames/cachetotals.h>
#include <viewer/imageviewer.h>

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
    void initTestCase()
    {
        m_look = std::make_unique<Look>(*qApp);
    }
    void cleanup() { qDeleteAll(qApp->findChildren<QTranslator *>()); }

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
        addTable<int>({"none"}, {{"de", 0}, {"es", 0}, {"fr", 0}, {"it", 0}, {"ja", 0}, {"ko", 0}, {"zh_CN", 0}});
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

        CacheTotals totals;
        ImageViewer viewer(totals, {});
        viewer.findChild<QAbstractButton *>(QStringLiteral("calibrationButton"))->click();
        showsTextsWhole(viewer);
        QVERIFY(viewer.width() <= viewer.screen()->availableSize().width());
    }

private:
    static void showsTextsWhole(QWidget &window)
    {
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        for (const QWidget *widget : window.findChildren<QWidget *>()) {
            const bool hasText =
                qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QLabel *>(widget);
            QVERIFY2(!hasText || !widget->isVisible() || widget->width() >= widget->minimumSizeHint().width(),
                     qPrintable(widget->objectName()));
        }
        for (const QScrollArea *area : window.findChildren<QScrollArea *>())
            QVERIFY2(!area->isVisible() || area->widget()->width() <= area->viewport()->width(),
                     qPrintable(area->objectName()));
    }

    std::unique_ptr<Look> m_look;
};

QTEST_MAIN(TranslationsTest)
#include "tst_translations.moc"
