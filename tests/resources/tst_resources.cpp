#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtGui/QImageReader>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>

namespace {

// As they are read.
constexpr const char *kSheets[] = {":/Styles/tarrow.qss", ":/Styles/viewer.qss", ":/Styles/shared.qss"};

QString text(const QString &resource)
{
    QFile file(resource);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

class TestResources : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// A sheet with one slip of the pen is dropped whole, with no more than a warning.
    void styleSheetsAreRead()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
        QString sheet;
        for (const char *name : kSheets)
            sheet += text(QLatin1String(name));
        qApp->setStyleSheet(sheet);
        QDialog dialog;
        QWidget header(&dialog);
        header.setObjectName(QStringLiteral("skinnedDialogHeaderLabel"));
        dialog.ensurePolished();
        header.ensurePolished();
        QCOMPARE(dialog.palette().color(QPalette::Window), QColor(0x2b, 0x2b, 0x2b));
        QCOMPARE(header.palette().color(QPalette::Window), QColor(0x3a, 0x3a, 0x3a));
        qApp->setStyleSheet({});
    }

    void styleSheetPicturesExist()
    {
        const QRegularExpression url(QStringLiteral("url\\(([^)]*)\\)"));
        int count = 0;
        for (const char *name : kSheets) {
            auto matches = url.globalMatch(text(QLatin1String(name)));
            for (; matches.hasNext(); ++count) {
                const QString path = matches.next().captured(1);
                QVERIFY2(QImageReader(path).canRead(), qPrintable(path));
            }
        }
        QVERIFY(count > 0);
    }
};

QTEST_MAIN(TestResources)
#include "tst_resources.moc"
