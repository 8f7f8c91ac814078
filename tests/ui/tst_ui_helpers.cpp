#include "svgicon.h"
#include "windowplacement.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>
#include <QtTest/QTest>

#include <limits>

namespace {

const QByteArray kTriangle = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 20 20'>"
                             "<path d='M10 2 L18 17 L3 14 Z' fill='#ff0000'/></svg>";

QString written(const QTemporaryDir &folder, const QByteArray &text)
{
    QFile file(folder.filePath(QStringLiteral("icon")));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("cannot write the icon");
    return file.fileName();
}

} // namespace

class TestUiHelpers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void svgIconIsCrispAtEverySize_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<qreal>("scale");
        for (const int size : {16, 22, 24, 32, 48, 64, 96, 128}) {
            for (const qreal scale : {1.0, 1.5, 2.0})
                QTest::addRow("%d at %g", size, scale) << size << scale;
        }
    }

    void svgIconIsCrispAtEverySize()
    {
        QFETCH(int, size);
        QFETCH(qreal, scale);
        const QPixmap pixmap = svgIcon(written(m_folder, kTriangle)).pixmap(QSize(size, size), scale);
        QCOMPARE(pixmap.deviceIndependentSize(), QSizeF(size, size));

        // Drawn for this very size, not scaled from another.
        QImage drawn(pixmap.size(), QImage::Format_ARGB32_Premultiplied);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        QSvgRenderer(kTriangle).render(&painter);
        painter.end();
        QImage shown = pixmap.toImage().convertToFormat(drawn.format());
        shown.setDevicePixelRatio(1);
        QCOMPARE(shown, drawn);
    }

    void unreadableSvgIsANullIcon_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("missing") << QByteArray();
        QTest::newRow("not XML") << QByteArray("\x89PNG and more");
        QTest::newRow("no picture") << QByteArray("<html/>");
    }

    void unreadableSvgIsANullIcon()
    {
        QFETCH(QByteArray, text);
        const QString path = text.isEmpty() ? QStringLiteral(":/icons/none") : written(m_folder, text);
        QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("Cannot read icon ") + path));
        QVERIFY(svgIcon(path).isNull());
    }

    void rectangleIsFitted_data()
    {
        QTest::addColumn<QRect>("wanted");
        QTest::addColumn<QRect>("expected");
        // A primary screen with a panel on top, and a lower one to its right.
        const auto same = [](const char *name, QRect rect) { QTest::newRow(name) << rect << rect; };
        const auto row = [](const char *name, QRect wanted, QRect expected) {
            QTest::newRow(name) << wanted << expected;
        };
        same("inside", {100, 100, 400, 300});
        same("across both", {1800, 400, 400, 300});
        same("on the second", {2000, 300, 400, 300});
        same("just enough of the header in sight", {1920 + 1280 - 40, 400, 400, 300});
        row("a little less of the header", {1920 + 1280 - 39, 400, 400, 300},
            {1920 + 1280 - 400, 400, 400, 300});
        row("header behind the panel", {100, 10, 400, 300}, {100, 24, 400, 300});
        row("only its bottom below the second", {2500, 1500, 400, 300}, {2500, 200 + 1024 - 300, 400, 300});
        row("left of everything", {-3000, 300, 400, 300}, {0, 300, 400, 300});
        row("far right", {9000, 700, 400, 300}, {1920 + 1280 - 400, 700, 400, 300});
        row("larger than the second", {1950, 250, 1500, 2000}, {1920, 200, 1280, 1024});
        constexpr int kMax = std::numeric_limits<int>::max();
        row("without measure", QRect(QPoint(-kMax, -kMax), QPoint(kMax, kMax)), {0, 24, 1920, 1056});
        row("at the end of the world", QRect(QPoint(kMax - 400, kMax - 300), QPoint(kMax, kMax)),
            {3199, 1223, 1, 1});
    }

    void rectangleIsFitted()
    {
        QFETCH(QRect, wanted);
        QFETCH(QRect, expected);
        QCOMPARE(fittedToAreas(wanted, {{0, 24, 1920, 1056}, {1920, 200, 1280, 1024}}), expected);
        QCOMPARE(fittedToAreas(wanted, {}), wanted);
    }

private:
    QTemporaryDir m_folder;
};

QTEST_MAIN(TestUiHelpers)
#include "tst_ui_helpers.moc"
