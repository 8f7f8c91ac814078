#include <viewer/widgets/render/viewgeometry.h>

#include <table.h>

#include <QtTest/QtTest>

class ViewGeometryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
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
};

QTEST_APPLESS_MAIN(ViewGeometryTest)
#include "tst_viewgeometry.moc"
