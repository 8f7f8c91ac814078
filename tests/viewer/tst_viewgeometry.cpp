#include <viewer/widgets/render/viewgeometry.h>

#include <QtTest/QTest>

class ViewGeometryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sizesRoundAndStayWithinAnInt()
    {
        QCOMPARE(ViewGeometry({{100, 100}, {5, 3}, 0.5F, {}}).quad(), QRectF(48.5, 49, 3, 2));
        const ViewGeometry huge{{100, 100}, {2000000000, 1}, 100.0F, {}};
        QCOMPARE(huge.quad(), QRectF(0, 0, 1e9, 100));
        QCOMPARE(huge.checkerOffset(), QPoint(0, 100));
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
