#include <viewer/widgets/imagewidget.h>
#include <viewer/widgets/render/viewgeometry.h>

#include <table.h>

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

    void pictureLiesInTheView_data()
    {
        addTable<QSize, float, QPoint, QRectF, QPoint>(
            {"frame", "zoom", "pan", "quad", "checker"},
            {{"centred to half a pixel", {51, 20}, 1.0F, {}, {24.5, 40, 51, 20}, {24, 60}},
             {"halves away from zero", {5, 3}, 0.5F, {}, {48.5, 49, 3, 2}, {48, 51}},
             {"one side larger, panned", {150, 40}, 1.0F, {20, 0}, {0, 30, 150, 40}, {-20, 70}},
             {"larger, panned both ways", {100, 75}, 2.0F, {7, 9}, {0, 0, 200, 150}, {-7, 109}},
             {"beyond an int", {2000000000, 1}, 100.0F, {}, {0, 0, 1e9, 100}, {0, 100}}});
    }

    void pictureLiesInTheView()
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

    void panStaysWithinThePicture()
    {
        const ViewGeometry geometry{{100, 100}, {150, 80}, 1.0F, {}};
        QCOMPARE(geometry.clampedPan({500, 30}), QPoint(50, 0));
        QCOMPARE(geometry.clampedPan({20, 0}), QPoint(20, 0));
    }

    void dragAsksToScrollInDevicePixels()
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

    void panEndsOnce()
    {
        QApplication::setOverrideCursor(Qt::WaitCursor); // someone else's stays
        // A move without the button: the release went elsewhere. None: the widget is destroyed.
        for (const auto type : {QEvent::MouseButtonRelease, QEvent::MouseMove, QEvent::Hide,
                                QEvent::WindowDeactivate, QEvent::UngrabMouse, QEvent::None}) {
            {
                imageWidget widget;
                press(widget, {5, 5});
                press(widget, {6, 6});
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
        }
        QApplication::restoreOverrideCursor();
    }

    void otherButtonsDoNotPan()
    {
        imageWidget widget;
        mouse(widget, QEvent::MouseButtonPress, {5, 5}, Qt::LeftButton, Qt::LeftButton);
        mouse(widget, QEvent::MouseButtonPress, {5, 5}, Qt::MiddleButton, Qt::LeftButton | Qt::MiddleButton);
        QVERIFY(!QApplication::overrideCursor());
    }

    void wheelAddsUp_data()
    {
        addTable<QList<QPoint>, int, int>(
            {"turns", "in", "out"},
            {{"notches", {{0, 120}, {0, 120}, {0, -120}}, 2, 1},
             {"least", {{0, 8}, {0, -8}}, 1, 1},
             {"touchpad", {{0, 3}, {0, 3}, {0, 3}, {0, 3}, {0, 3}, {0, 3}}, 2, 0},
             {"back and forth", {{0, 7}, {0, -7}, {0, 7}, {0, -7}, {0, -1}}, 0, 1},
             {"sideways", {{120, 0}, {-120, 0}}, 0, 0}});
    }

    void wheelAddsUp()
    {
        QFETCH(QList<QPoint>, turns);
        imageWidget widget;
        QSignalSpy in(&widget, &imageWidget::zoomInRequested);
        QSignalSpy out(&widget, &imageWidget::zoomOutRequested);
        for (const QPoint turn : turns) {
            QWheelEvent event({5, 5}, widget.mapToGlobal(QPointF(5, 5)), {}, turn, Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            event.ignore();
            QApplication::sendEvent(&widget, &event);
            QVERIFY(event.isAccepted());
        }
        QTEST(int(in.size()), "in");
        QTEST(int(out.size()), "out");
    }

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

QTEST_MAIN(ImageWidgetTest)
#include "tst_imagewidget.moc"
