#include <ui/stylesheets.h>
#include <ui/theme.h>

#include <QtCore/QRegularExpression>
#include <QtGui/QImageReader>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>

class TestResources : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// A sheet with one slip of the pen is dropped whole, with no more than a warning.
    void styleSheetsAreRead()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
        qApp->setStyleSheet(StyleSheets::forProgram(Theme::plain(true, false)));
        QDialog dialog;
        QWidget header(&dialog);
        header.setObjectName(QStringLiteral("skinnedDialogHeaderLabel"));
        dialog.ensurePolished();
        header.ensurePolished();
        QCOMPARE(header.palette().color(QPalette::Window), Theme::plain(true, false).color(QPalette::Button));
        qApp->setStyleSheet(StyleSheets::forViewer());
        qApp->setStyleSheet({});
    }

    void styleSheetPicturesExist()
    {
        const QRegularExpression url(QStringLiteral("url\\(([^)]*)\\)"));
        int count = 0;
        for (const bool isDark : {true, false}) {
            const QString sheet =
                StyleSheets::forProgram(Theme::plain(isDark, false)) + StyleSheets::forViewer();
            for (auto matches = url.globalMatch(sheet); matches.hasNext(); ++count) {
                const QString path = matches.next().captured(1);
                QVERIFY2(QImageReader(path).canRead(), qPrintable(path));
            }
        }
        QVERIFY(count > 0);
    }
};

QTEST_MAIN(TestResources)
#include "tst_resources.moc"
