#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtGui/QImageReader>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>

namespace {

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
        qApp->setStyleSheet(text(QStringLiteral(":/Styles/tarrow.qss"))
                            + text(QStringLiteral(":/Styles/shared.qss")));
        QDialog dialog;
        QWidget header(&dialog);
        header.setObjectName(QStringLiteral("skinnedDialogHeaderLabel"));
        dialog.ensurePolished();
        header.ensurePolished();
        QCOMPARE(header.palette().color(QPalette::Window), dialog.palette().color(QPalette::Button));
        qApp->setStyleSheet({});
    }

    void styleSheetPicturesExist()
    {
        const QRegularExpression url(QStringLiteral("url\\(([^)]*)\\)"));
        int count = 0;
        for (const char *name : {":/Styles/tarrow.qss", ":/Styles/shared.qss"}) {
            auto matches = url.globalMatch(text(QLatin1String(name)));
            for (; matches.hasNext(); ++count) {
                QString path = matches.next().captured(1);
                path.replace(QRegularExpression(QStringLiteral("/(ink|mark)/")), QStringLiteral("/dark/"));
                QVERIFY2(QImageReader(path).canRead(), qPrintable(path));
                path.replace(QStringLiteral("/dark/"), QStringLiteral("/light/"));
                QVERIFY2(QImageReader(path).canRead(), qPrintable(path));
            }
        }
        QVERIFY(count > 0);
    }
};

QTEST_MAIN(TestResources)
#include "tst_resources.moc"
