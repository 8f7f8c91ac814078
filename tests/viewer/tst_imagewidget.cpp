#include <imagewidget.h>
#include <viewgeometry.h>

#include <QtGui/QMouseEvent>
#include <QtGui/QWheelEvent>
#include <QtTest/QSignalSpy>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

/// The view's arithmetic, and the mouse on a screen of one and a half device pixels a pixel.
class ImageWidgetTest : public QObject {
    Q_OBJECT

public:
    static void initMain() { qputenv("QT_SCALE_FACTOR", "1.5"); }

private Q_SLOTS:
    void cleanup() { QVERIFY(!QApplication::overrideCursor()); }

    void pictureLiesInTheView_data();
    void pictureLiesInTheView();
    void panStaysWithinThePicture_data();
    void panStaysWithinThePicture();
    void dragAsksToScrollInDevicePixels();
    void panEndsOnce_data();
    void panEndsOnce();
    void otherButtonsDoNotPan();
    void wheelAddsUp_data();
    void wheelAddsUp();

private:
    static void mouse(imageWidget &widget, QEvent::Type type, QPointF at, Qt::MouseButton button,
                      Qt::MouseButtons buttons)
    {
        QMouseEvent event(type, at, widget.mapToGlobal(at), button, buttons, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }
    static void press(imageWidget &widget, QPointF at)
    {
        mouse(widget, QEvent::MouseButtonPress, at, Qt::MiddleButton, Qt::MiddleButton);
    }
};

void ImageWidgetTest::pictureLiesInTheView_data()
{
    QTest::addColumn<QSize>("frame");
    QTest::addColumn<float>("zoom");
    QTest::addColumn<QPoint>("pan");
    QTest::addColumn<QRectF>("quad");
    QTest::addColumn<QPoint>("checker");
    QTest::newRow("centred to half a pixel")
        << QSize(51, 20) << 1.0F << QPoint() << QRectF(24.5, 40, 51, 20) << QPoint(24, 60);
    QTest::newRow("halves away from zero")
        << QSize(5, 3) << 0.5F << QPoint() << QRectF(48.5, 49, 3, 2) << QPoint(48, 51);
    QTest::newRow("one side larger, panned")
        << QSize(150, 40) << 1.0F << QPoint(20, 0) << QRectF(0, 30, 150, 40) << QPoint(-20, 70);
    QTest::newRow("larger, panned both ways")
        << QSize(100, 75) << 2.0F << QPoint(7, 9) << QRectF(0, 0, 200, 150) << QPoint(-7, 109);
    QTest::newRow("beyond an int") << QSize(2000000000, 1) << 100.0F << QPoint() << QRectF(0, 0, 1e9, 100)
                                   << QPoint(0, 100);
}

void ImageWidgetTest::pictureLiesInTheView()
{
    QFETCH(QSize, frame);
    QFETCH(float, zoom);
    QFETCH(QPoint, pan);
    const ViewGeometry geometry{{100, 100}, frame, zoom, pan};
    QTEST(geometry.quad(), "quad");
    QTEST(geometry.checkerOffset(), "checker");
    // The view's own corners are those of GL's.
    QCOMPARE(geometry.projection().map(QPointF(pan)).toPoint(), QPoint(-1, 1));
    QCOMPARE(geometry.projection().map(QPointF(pan + QPoint(100, 100))).toPoint(), QPoint(1, -1));
}

void ImageWidgetTest::panStaysWithinThePicture_data()
{
    QTest::addColumn<QPoint>("wanted");
    QTest::addColumn<QPoint>("pan");
    QTest::newRow("as far as the picture goes") << QPoint(500, 30) << QPoint(50, 0);
    QTest::newRow("on the way") << QPoint(20, 0) << QPoint(20, 0);
}

void ImageWidgetTest::panStaysWithinThePicture()
{
    QFETCH(QPoint, wanted);
    const ViewGeometry geometry{{100, 100}, {150, 80}, 1.0F, {}};
    QTEST(geometry.clampedPan(wanted), "pan");
}

void ImageWidgetTest::dragAsksToScrollInDevicePixels()
{
    imageWidget widget;
    widget.resize(200, 160);
    widget.winId(); // a window has the ratio of its screen
    widget.setZoomFactor(2); // 640 x 480 device pixels in a view of 300 x 240
    QCOMPARE(widget.viewSize(), QSize(300, 240));
    QCOMPARE(widget.setPan({100, 80}), QPoint(100, 80));
    QSignalSpy horizontal(&widget, &imageWidget::horizontalScrollRequested);
    QSignalSpy vertical(&widget, &imageWidget::verticalScrollRequested);
    press(widget, {50, 50});
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::SizeAllCursor);
    mouse(widget, QEvent::MouseMove, {60, 48}, Qt::NoButton, Qt::MiddleButton);
    QCOMPARE(horizontal.value(0), QVariantList{85});
    QCOMPARE(vertical.value(0), QVariantList{83});
    QCOMPARE(widget.pan(), QPoint(100, 80));
    mouse(widget, QEvent::MouseButtonRelease, {60, 48}, Qt::MiddleButton, Qt::NoButton);
    mouse(widget, QEvent::MouseMove, {90, 90}, Qt::NoButton, Qt::NoButton);
    QCOMPARE(horizontal.size(), 1);
    QVERIFY(!widget.hasMouseTracking());
}

void ImageWidgetTest::panEndsOnce_data()
{
    QTest::addColumn<int>("end");
    QTest::newRow("release") << int(QEvent::MouseButtonRelease);
    QTest::newRow("hidden") << int(QEvent::Hide);
    QTest::newRow("another window") << int(QEvent::WindowDeactivate);
    QTest::newRow("grab taken") << int(QEvent::UngrabMouse);
    QTest::newRow("release that went elsewhere") << int(QEvent::MouseMove);
    QTest::newRow("destroyed") << int(QEvent::None);
}

void ImageWidgetTest::panEndsOnce()
{
    QFETCH(int, end);
    QApplication::setOverrideCursor(Qt::WaitCursor); // someone else's stays
    {
        imageWidget widget;
        press(widget, {5, 5});
        press(widget, {6, 6});
        const auto type = static_cast<QEvent::Type>(end);
        if (type == QEvent::MouseMove || type == QEvent::MouseButtonRelease) {
            mouse(widget, type, {9, 9}, type == QEvent::MouseMove ? Qt::NoButton : Qt::MiddleButton,
                  Qt::NoButton);
        } else if (type != QEvent::None) {
            QEvent event(type);
            QApplication::sendEvent(&widget, &event);
        }
        if (type != QEvent::None)
            QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        mouse(widget, QEvent::MouseButtonRelease, {9, 9}, Qt::MiddleButton, Qt::NoButton);
    }
    QVERIFY(QApplication::overrideCursor());
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QApplication::restoreOverrideCursor();
}

void ImageWidgetTest::otherButtonsDoNotPan()
{
    imageWidget widget;
    mouse(widget, QEvent::MouseButtonPress, {5, 5}, Qt::LeftButton, Qt::LeftButton);
    mouse(widget, QEvent::MouseButtonPress, {5, 5}, Qt::MiddleButton, Qt::LeftButton | Qt::MiddleButton);
    QVERIFY(!QApplication::overrideCursor());
}

void ImageWidgetTest::wheelAddsUp_data()
{
    QTest::addColumn<QList<QPoint>>("turns");
    QTest::addColumn<int>("in");
    QTest::addColumn<int>("out");
    const auto vertical = [](std::initializer_list<int> turns) {
        QList<QPoint> points;
        for (const int turn : turns)
            points += QPoint(0, turn);
        return points;
    };
    QTest::newRow("notches") << vertical({120, 120, -120}) << 2 << 1;
    QTest::newRow("least") << vertical({8, -8}) << 1 << 1;
    QTest::newRow("too little") << vertical({7}) << 0 << 0;
    QTest::newRow("touchpad") << vertical({3, 3, 3, 3, 3, 3}) << 2 << 0;
    QTest::newRow("back and forth") << vertical({7, -7, 7, -7, -1}) << 0 << 1;
    QTest::newRow("sideways") << QList<QPoint>{{120, 0}, {-120, 0}} << 0 << 0;
}

void ImageWidgetTest::wheelAddsUp()
{
    QFETCH(QList<QPoint>, turns);
    imageWidget widget;
    QSignalSpy in(&widget, &imageWidget::zoomInRequested);
    QSignalSpy out(&widget, &imageWidget::zoomOutRequested);
    for (const QPoint turn : turns) {
        QWheelEvent event({5, 5}, widget.mapToGlobal(QPointF(5, 5)), {}, turn, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        event.ignore();
        QApplication::sendEvent(&widget, &event);
        QVERIFY(event.isAccepted());
    }
    QTEST(int(in.size()), "in");
    QTEST(int(out.size()), "out");
}

QTEST_MAIN(ImageWidgetTest)
#include "tst_imagewidget.moc"
