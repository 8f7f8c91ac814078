#include "table.h"

#include <ui/svgicon.h>
#include <ui/windowplacement.h>

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
    QFile file(folder.filePath(QStringLiteral("icon%1").arg(text.size())));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("cannot write the icon");
    return file.fileName();
}

} // namespace

class TestUiHelpers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void svgIconIsCrispAtEverySize()
    {
        for (const auto &[size, scale] : {std::pair(16, 1.0), {22, 1.5}, {32, 2.0}, {128, 1.0}}) {
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
    }

    void unreadableSvgIsANullIcon()
    {
        for (const QString &path : {QStringLiteral(":/icons/none"), written(m_folder, "\x89PNG and more"),
                                    written(m_folder, "<html/>")}) {
            QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("Cannot read icon ") + path));
            QVERIFY(svgIcon(path).isNull());
        }
    }

    void rectangleIsFitted_data()
    {
        // A primary screen with a panel on top, and a lower one to its right.
        constexpr int kMax = std::numeric_limits<int>::max();
        addTable<QRect, QRect>(
            {"wanted", "expected"},
            {{"inside", {100, 100, 400, 300}, {100, 100, 400, 300}},
             {"across both", {1800, 400, 400, 300}, {1800, 400, 400, 300}},
             {"just enough of the header in sight", {3160, 400, 400, 300}, {3160, 400, 400, 300}},
             {"a little less of the header", {3161, 400, 400, 300}, {2800, 400, 400, 300}},
             {"header behind the panel", {100, 10, 400, 300}, {100, 24, 400, 300}},
             {"only its bottom below the second", {2500, 1500, 400, 300}, {2500, 924, 400, 300}},
             {"left of everything", {-3000, 300, 400, 300}, {0, 300, 400, 300}},
             {"larger than the second", {1950, 250, 1500, 2000}, {1920, 200, 1280, 1024}},
             {"without measure", QRect(QPoint(-kMax, -kMax), QPoint(kMax, kMax)), {0, 24, 1920, 1056}},
             {"at the end of the world",
              QRect(QPoint(kMax - 400, kMax - 300), QPoint(kMax, kMax)),
              {3199, 1223, 1, 1}}});
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
