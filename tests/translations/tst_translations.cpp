#include <cachetotals.h>
#include <imageviewer.h>
#include <language.h>
#include <look.h>
#include <menus.h>
#include <preferences.h>

#include <QtCore/QTranslator>
#include <QtGui/QScreen>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollArea>

namespace {

const QStringList kLanguages{QStringLiteral("de"), QStringLiteral("es"), QStringLiteral("fr"),
                             QStringLiteral("it"), QStringLiteral("ja")};

QString mnemonicOf(const QString &text)
{
    return QKeySequence::mnemonic(text).toString();
}

} // namespace

class TranslationsTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Look::installFonts();
        Look::installStyle(*qApp);
    }
    void cleanup() { qDeleteAll(qApp->findChildren<QTranslator *>()); }

    void languageIsChosen_data()
    {
        QTest::addColumn<QString>("codes");
        QTest::addColumn<bool>("known");
        QTest::addColumn<QString>("quit");
        const QString german = QStringLiteral("&Beenden");
        const QString source = QStringLiteral("&Quit");
        QTest::newRow("a country's") << QStringLiteral("de_AT") << true << german;
        QTest::newRow("the first known") << QStringLiteral("sv de fr") << true << german;
        QTest::newRow("English first") << QStringLiteral("en-GB de") << true << source;
        QTest::newRow("none known") << QStringLiteral("sv nb") << false << source;
        QTest::newRow("no language") << QStringLiteral("../de") << true << source;
    }
    void languageIsChosen()
    {
        QFETCH(QString, codes);
        QTEST(installFirstLanguage(codes.split(QLatin1Char(' '))), "known");
        QTEST(TrayMenu(nullptr).quit->text(), "quit");
    }

    void codeIsChecked()
    {
        QVERIFY(installLanguage(QString()));
        QVERIFY(installLanguage(QStringLiteral("en")));
        QVERIFY(!installLanguage(QStringLiteral("sv")));
        QVERIFY(!installLanguage(QStringLiteral("../de")));
        QCOMPARE(TrayMenu(nullptr).quit->text(), QStringLiteral("&Quit"));
    }

    void mnemonicsAreUnique_data() { languageRows(); }
    void mnemonicsAreUnique()
    {
        QVERIFY(installLanguage(QString::fromLatin1(QTest::currentDataTag())));
        TrayMenu tray(nullptr);
        ListMenu list(nullptr);
        for (const QMenu *menu : {static_cast<QMenu *>(&tray), static_cast<QMenu *>(&list)}) {
            QHash<QString, QString> owners;
            for (const QAction *action : menu->actions()) {
                const QString key = mnemonicOf(action->text());
                QVERIFY2(key.isEmpty() || !owners.contains(key),
                         qPrintable(owners.value(key) + QStringLiteral(" / ") + action->text()));
                owners.insert(key, action->text());
            }
        }
    }

    void textsAreShownWhole_data() { languageRows(); }
    void textsAreShownWhole()
    {
        QVERIFY(installLanguage(QString::fromLatin1(QTest::currentDataTag())));
        preferences dialog(nullptr);
        showsTextsWhole(dialog);

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
            QVERIFY2(area->widget()->width() <= area->viewport()->width(), qPrintable(area->objectName()));
    }
    static void languageRows()
    {
        QTest::addColumn<int>("none");
        for (const QString &code : kLanguages)
            QTest::newRow(qPrintable(code)) << 0;
    }
};

QTEST_MAIN(TranslationsTest)
#include "tst_translations.moc"
