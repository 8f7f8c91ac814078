#include "svgicon.h"
#include "windowplacement.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <limits>

class TestUiHelpers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void svgIconIsCrispAtEverySize_data();
    void svgIconIsCrispAtEverySize();
    void unreadableSvgIsANullIcon_data();
    void unreadableSvgIsANullIcon();
    void rectangleIsFitted_data();
    void rectangleIsFitted();

private:
    QString written(const QByteArray &text);

    QTemporaryDir m_folder;
};

QString TestUiHelpers::written(const QByteArray &text)
{
    QFile file(m_folder.filePath(QStringLiteral("icon")));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("cannot write the icon");
    return file.fileName();
}

void TestUiHelpers::svgIconIsCrispAtEverySize_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<qreal>("scale");
    for (const int size : {16, 22, 24, 32, 48, 64, 96, 128}) {
        for (const qreal scale : {1.0, 1.5, 2.0})
            QTest::addRow("%d at %g", size, scale) << size << scale;
    }
}

void TestUiHelpers::svgIconIsCrispAtEverySize()
{
    QFETCH(int, size);
    QFETCH(qreal, scale);
    // Twice as wide as high, the left half red: drawn for a size, the edges are on whole pixels and nothing is blended
    // across; scaled from another size they would be.
    const QIcon icon = svgIcon(written(R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 20 20">
        <rect x="0" y="0" width="10" height="20" fill="#ff0000"/></svg>)"));
    const QPixmap pixmap = icon.pixmap(QSize(size, size), scale);
    const int pixels = qRound(size * scale);
    QCOMPARE(pixmap.size(), QSize(pixels, pixels));
    QCOMPARE(pixmap.deviceIndependentSize(), QSizeF(size, size));
    const QImage image = pixmap.toImage();
    QCOMPARE(image.pixelColor(0, pixels - 1), QColor(Qt::red));
    QCOMPARE(image.pixelColor(pixels / 2 - 1, 0), QColor(Qt::red));
    QCOMPARE(image.pixelColor((pixels + 1) / 2, pixels / 2).alpha(), 0);
}

void TestUiHelpers::unreadableSvgIsANullIcon_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("not XML") << QByteArray("\x89PNG and more");
    QTest::newRow("no picture") << QByteArray("<html/>");
}

void TestUiHelpers::unreadableSvgIsANullIcon()
{
    QFETCH(QByteArray, text);
    const QString path = text.isEmpty() ? QStringLiteral(":/icons/none") : written(text);
    QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("Cannot read icon ") + path));
    QVERIFY(svgIcon(path).isNull());
}

void TestUiHelpers::rectangleIsFitted_data()
{
    QTest::addColumn<QRect>("wanted");
    QTest::addColumn<QRect>("expected");
    // A primary screen with a panel on top, and a lower one to its right.
    const auto same = [](const char *name, QRect rect) { QTest::newRow(name) << rect << rect; };
    const auto row = [](const char *name, QRect wanted, QRect expected) {
        QTest::newRow(name) << wanted << expected;
    };
    same("inside", {100, 100, 400, 300});
    same("whole work area", {0, 24, 1920, 1056});
    same("across both", {1800, 400, 400, 300});
    same("on the second", {2000, 300, 400, 300});
    same("just enough of the header in sight", {1920 + 1280 - 40, 400, 400, 300});
    same("smaller than a grasp", {10, 30, 8, 8});
    row("a little less of the header", {1920 + 1280 - 39, 400, 400, 300}, {1920 + 1280 - 400, 400, 400, 300});
    row("header behind the panel", {100, 10, 400, 300}, {100, 24, 400, 300});
    row("header above the screens", {100, -200, 400, 300}, {100, 24, 400, 300});
    row("only its bottom below the second", {2500, 1500, 400, 300}, {2500, 200 + 1024 - 300, 400, 300});
    row("left of everything", {-3000, 300, 400, 300}, {0, 300, 400, 300});
    row("far right", {9000, 700, 400, 300}, {1920 + 1280 - 400, 700, 400, 300});
    row("larger than the second", {1950, 250, 1500, 2000}, {1920, 200, 1280, 1024});
    row("higher than the first", {100, 24, 400, 2000}, {100, 24, 400, 1056});
    constexpr int kMax = std::numeric_limits<int>::max();
    row("without measure", QRect(QPoint(-kMax, -kMax), QPoint(kMax, kMax)), {0, 24, 1920, 1056});
    row("at the end of the world", QRect(QPoint(kMax - 400, kMax - 300), QPoint(kMax, kMax)),
        {3199, 1223, 1, 1});
}

void TestUiHelpers::rectangleIsFitted()
{
    QFETCH(QRect, wanted);
    QFETCH(QRect, expected);
    QCOMPARE(fittedToAreas(wanted, {{0, 24, 1920, 1056}, {1920, 200, 1280, 1024}}), expected);
    QCOMPARE(fittedToAreas(wanted, {}), wanted);
}

QTEST_MAIN(TestUiHelpers)
#include "tst_ui_helpers.moc"
