#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtGui/QImageReader>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>

#include <array>
#include <cstdlib>

namespace {

constexpr std::array kIcons = {"mainIcon",      "connectingIcon", "unconnectedIcon", "service", "itemStart",
                               "itemCompleted", "itemWarning",    "itemError",       "check"};

QString text(const QString &resource)
{
    QFile file(resource);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The icon without its colours, as a dark tray of 16 pixels shows it; null when the resource is no SVG.
QImage drawnGrey(const char *name)
{
    QSvgRenderer renderer(QStringLiteral(":/icons/") + QLatin1String(name));
    if (!renderer.isValid())
        return {};
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(QColor(0x2b, 0x2b, 0x2b));
    QPainter painter(&image);
    renderer.render(&painter);
    return image.convertToFormat(QImage::Format_Grayscale8);
}

/// Pixels that are plainly darker or lighter in one of two grey pictures.
int difference(const QImage &first, const QImage &second)
{
    int count = 0;
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x)
            count += std::abs(qGray(first.pixel(x, y)) - qGray(second.pixel(x, y))) > 40;
    }
    return count;
}

} // namespace

class TestResources : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// Who cannot tell the colours apart still tells the icons apart in the smallest tray.
    void iconsDifferInShape()
    {
        for (const char *first : kIcons) {
            const QImage image = drawnGrey(first);
            QVERIFY2(!image.isNull(), first);
            for (const char *second : kIcons) {
                const int pixels = difference(image, drawnGrey(second));
                QVERIFY2(first == second || pixels >= 32,
                         qPrintable(QStringLiteral("%1 and %2 differ in %3 pixels")
                                        .arg(QLatin1String(first), QLatin1String(second))
                                        .arg(pixels)));
            }
        }
    }

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
        QCOMPARE(dialog.palette().color(QPalette::Window), QColor(0x2b, 0x2b, 0x2b));
        QCOMPARE(header.palette().color(QPalette::Window), QColor(0x3a, 0x3a, 0x3a));
        qApp->setStyleSheet({});
    }

    void styleSheetPicturesExist()
    {
        const QRegularExpression url(QStringLiteral("url\\(([^)]*)\\)"));
        int count = 0;
        for (const char *name : {":/Styles/tarrow.qss", ":/Styles/shared.qss"}) {
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
