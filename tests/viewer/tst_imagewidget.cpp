#include <viewer/widgets/imagewidget.h>

#include <QtGui/QMouseEvent>
#include <QtGui/QWheelEvent>
#include <QtTest/QSignalSpy>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

/// The mouse on a screen of one and a half device pixels a pixel.
class ImageWidgetTest : public QObject {
    Q_OBJECT

public:
    static void initMain() { qputenv("QT_SCALE_FACTOR", "1.5"); }

private Q_SLOTS:
    void cleanup() { QVERIFY(!QApplication::overrideCursor()); }

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
        // A move without the button: the release went elsewhere.
        for (const auto type : {QEvent::MouseButtonRelease, QEvent::MouseMove, QEvent::Hide}) {
            imageWidget widget;
            press(widget, {5, 5});
            press(widget, {6, 6});
            const bool isRelease = type == QEvent::MouseButtonRelease;
            QEvent hide(type);
            if (type == QEvent::Hide)
                QApplication::sendEvent(&widget, &hide);
            else
                mouse(widget, type, {9, 9}, isRelease ? Qt::MiddleButton : Qt::NoButton, Qt::NoButton);
            QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
            mouse(widget, QEvent::MouseButtonRelease, {9, 9}, Qt::MiddleButton, Qt::NoButton);
            QVERIFY(QApplication::overrideCursor());
        }
        QApplication::restoreOverrideCursor();
    }

    void wheelAsksToZoomInDevicePixels()
    {
        imageWidget widget;
        widget.winId();
        QSignalSpy zoomed(&widget, &imageWidget::zoomRequested);
        // A notch, a part of one as touchpads send it, more than a hand can turn, and a turn sideways.
        for (const QPoint turn : {QPoint(0, 120), {0, -12}, {0, 1 << 30}, {120, 0}}) {
            QWheelEvent event({6, 4}, widget.mapToGlobal(QPointF(6, 4)), {}, turn, Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            event.ignore();
            QApplication::sendEvent(&widget, &event);
            QVERIFY(event.isAccepted());
        }
        QCOMPARE(zoomed.size(), 3);
        QCOMPARE(zoomed[0], (QVariantList{1.0F, QPointF(9, 6)}));
        QCOMPARE(zoomed[1][0].toFloat(), -0.1F);
        QCOMPARE(zoomed[2][0].toFloat(), 10.0F);
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
