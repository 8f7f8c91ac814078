#include "picturetest.h"
#include "table.h"

#include <ui/tappstate.h>

#include <QtCore/QRegularExpression>
#include <QtGui/QOpenGLContext>
#include <QtGui/QOpenGLFunctions>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <array>
#include <functional>
#include <limits>
#include <map>
#include <tuple>

using Change = std::function<void(imageWidget &)>;

namespace {

constexpr double kTolerance = 1.5;
/// Empty when every pixel is as it should be, else the first that is not.
QString difference(const QImage &picture, const PictureSetup &setup, const PictureFrame *shown)
{
    if (picture.size() != setup.view)
        return QStringLiteral("%1 x %2 pixels").arg(picture.width()).arg(picture.height());
    const auto expected = drawReference(setup, shown);
    const QImage stored = picture.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    for (int i = 0; i < stored.width() * stored.height(); ++i) {
        const auto &colour = expected[std::size_t(i)];
        const int x = i % stored.width();
        const int y = i / stored.width();
        for (int c = 0; colour && c < 3; ++c) {
            const double found = stored.constScanLine(y)[4 * x + c];
            const double wanted = 255.0 * (*colour)[std::size_t(c)];
            if (!(std::abs(found - wanted) <= kTolerance))
                return QString::asprintf("channel %d at %d, %d is %g, not %g", c, x, y, found, wanted);
        }
    }
    return {};
}

} // namespace

class PictureTest final : public PictureTestBase {
    Q_OBJECT

private Q_SLOTS:
    void pipeline_data()
    {
        QTest::addColumn<PictureLook>("look");
        QTest::addColumn<ImageFrame>("form");
        const ImageFrame plain = flagged();
        const std::tuple<const char *, float Calibration::*, std::vector<float>> sliders[] = {
            {"gamma", &Calibration::gamma, {0.0F, 0.45F, 1.0F, 2.2F, 4.0F}},
            {"brightness", &Calibration::brightness, {0.0F, 0.7F, 1.3F, 2.0F}},
            {"saturation", &Calibration::saturation, {0.0F, 0.5F, 1.5F, 2.0F}},
            {"contrast", &Calibration::contrast, {-1.0F, 0.0F, 0.6F, 1.4F, 2.0F}},
            {"level input min", &Calibration::levelInputMin, {-1.0F, -0.3F, 0.3F, 1.0F}},
            // Nothing is defined for 0, which divides.
            {"level input max", &Calibration::levelInputMax, {-1.0F, -0.4F, 0.1F, 0.6F}},
            {"level output min", &Calibration::levelOutputMin, {-1.0F, -0.3F, 0.3F, 1.0F}},
            {"level output max", &Calibration::levelOutputMax, {-1.0F, 0.0F, 0.6F}},
            {"soft clip", &Calibration::softClip, {0.0F, 0.2F, 0.7F, 1.5F, 2.0F}},
        };
        for (const auto &[name, value, settings] : sliders) {
            for (const float setting : settings) {
                PictureLook look;
                look.calibration.*value = setting;
                QTest::addRow("%s %g", name, double(setting)) << look << plain;
            }
        }
        for (const float gamma : {0.1F, 1.8F, 2.2F, 4.0F}) // nor for 0 here
            QTest::addRow("source gamma %g", double(gamma)) << PictureLook{{}, gamma} << plain;
        for (const int mode : {-1, 1, 2, 3, 4, 5, 6, 1000}) {
            for (const bool alphaOn : {false, true})
                QTest::addRow("mode %d, alpha %d", mode, alphaOn)
                    << PictureLook{{}, 1.0F, mode, true, alphaOn} << plain;
        }
        const Calibration all{0.6F, 1.1F, 1.4F, 0.8F, 0.1F, 0.9F, 0.05F, 0.95F, 0.3F};
        for (const bool alphaOn : {false, true}) {
            for (int flags = 0; flags < 8; ++flags)
                QTest::addRow("all at once, alpha %d, flags %d", alphaOn, flags)
                    << PictureLook{all, 2.2F, 0, true, alphaOn} << flagged(flags & 1, flags & 2, flags & 4);
        }

        // The format of each of several textures, then those of one texture by its samples.
        const std::tuple<const char *, GLenum, GLenum, std::map<int, GLenum>> formats[] = {
            {"8 bit", GL_UNSIGNED_BYTE, GL_R8, {{1, GL_LUMINANCE}, {3, GL_RGB}, {4, GL_RGBA}}},
            {"16 bit", GL_UNSIGNED_SHORT, GL_R16F, {{4, GL_RGBA16}}},
            {"half", GL_HALF_FLOAT, GL_R16F, {{1, GL_R16F}, {3, GL_RGB16F}, {4, GL_RGBA16F}}},
            {"float", GL_FLOAT, GL_R32F, {{1, GL_R32F}, {3, GL_RGB32F}, {4, GL_RGBA32F}}}};
        for (const auto &[name, type, plane, packed] : formats) {
            for (const auto &[samples, format] : packed)
                QTest::addRow("%s, %d samples", name, samples)
                    << PictureLook() << stored(format, type, samples);
            for (const int count : {2, 3, 4})
                QTest::addRow("%s, %d textures", name, count)
                    << PictureLook() << stored(plane, type, 1, count);
        }
    }
    void pipeline()
    {
        QFETCH(PictureLook, look);
        QFETCH(ImageFrame, form);
        const auto shown = show(form, kFrame);
        compare({look, kPlace.size()}, shown.get());
    }

    void geometry_data()
    {
        addTable<QSize, float, QPoint, bool>({"frame", "zoom", "pan", "checkerOn"},
                                             {{"no frame, larger", {}, 4.0F, {37, 81}, true},
                                              {"no frame, smaller", {}, 0.25F, {}, true},
                                              {"an odd pixel to spare", {101, 79}, 1.0F, {}, true},
                                              {"no checker", {100, 80}, 1.0F, {}, false},
                                              {"larger, panned", {640, 500}, 1.0F, {33, 71}, true},
                                              {"zoomed in, panned", {320, 250}, 2.0F, {127, 49}, true},
                                              {"zoomed in, smaller", {40, 20}, 3.0F, {}, true},
                                              {"zoomed out", {401, 241}, 0.5F, {}, true},
                                              {"wider only", {640, 60}, 1.0F, {55, 0}, true}});
    }
    void geometry()
    {
        QFETCH(QSize, frame);
        QFETCH(float, zoom);
        QFETCH(QPoint, pan);
        QFETCH(bool, checkerOn);
        m_picture->setGeometry(0, 0, 240, 180);
        const auto shown = frame.isEmpty() ? nullptr : show(flagged(), frame);
        PictureSetup setup{{}, QSize(240, 180) * m_picture->devicePixelRatioF(), zoom, pan};
        setup.look.checkerOn = checkerOn;
        compare(setup, shown.get());
        QCOMPARE(m_picture->viewSize(), setup.view);
        QCOMPARE(m_picture->pan(), pan);
    }

    void texelsKeepToThemselves_data()
    {
        addTable<float>({"zoom"}, {{"own pixels", 1.0F}, {"magnified", 3.0F}, {"reduced", 0.25F}});
    }
    void texelsKeepToThemselves()
    {
        QFETCH(float, zoom);
        m_picture->setGeometry(0, 0, 240, 180);
        m_picture->setBackgroundColor(Qt::black);
        m_picture->setCheckerOn(false);
        m_picture->setZoomFactor(zoom);
        const std::array<float, 4> grey{0.25F, 0.25F, 0.25F, 1.0F};
        constexpr float kInfinity = std::numeric_limits<float>::infinity();
        constexpr float kNone = std::numeric_limits<float>::quiet_NaN();
        // What a texel holds, and what the middle of it has to show; a transparent one is to lend nobody its colour.
        const std::tuple<std::array<float, 4>, QColor> texels[] = {
            {{kInfinity, kInfinity, kInfinity, kInfinity}, Qt::white},
            {{-kInfinity, kInfinity, 0, 1}, Qt::green},
            {{kNone, kNone, kNone, kNone}, Qt::black},
            {{1, 0, 0, 0}, Qt::black}};
        for (const auto &[samples, colour] : texels) {
            const auto &texel = samples;
            const auto shown = show(flagged(), QSize(40, 40), [&](ImageFrame &frame) {
                auto *pixels = static_cast<float *>(const_cast<void *>(frame.planes[0]));
                for (int i = 0; i < 40 * 40; ++i)
                    std::copy_n((i == 20 * 40 + 20 ? texel : grey).begin(), 4,
                                pixels + 4 * std::ptrdiff_t(i));
            });
            const QImage picture = m_picture->grabFramebuffer();
            const QRect place = ViewGeometry{m_picture->viewSize(), {40, 40}, zoom, {}}.quad();
            const QPoint middle = place.topLeft() + QPoint(int(20.5F * zoom), int(20.5F * zoom));
            for (int y = place.top(); y <= place.bottom(); ++y) {
                for (int x = place.left(); x <= place.right(); ++x) {
                    const QColor found = picture.pixelColor(x, y);
                    const int away = std::max(std::abs(x - middle.x()), std::abs(y - middle.y()));
                    if (away == 0 && zoom >= 1.0F)
                        QCOMPARE(found, colour);
                    else if (texel[3] == 0.0F)
                        QVERIFY(found.red() == found.green() && found.green() == found.blue());
                    else if (away > zoom / 2.0F)
                        QCOMPARE(found, picture.pixelColor(place.topLeft()));
                }
            }
        }
    }

    /// Fine lines that single texels would show or miss are grey in a picture that is far smaller.
    void reducedPicturesShowTheMean()
    {
        m_picture->setCheckerOn(false);
        m_picture->setCalibration({.softClip = 0.01F});
        m_picture->setZoomFactor(0.2F);
        for (int first = 0; first < 5; ++first) {
            const float lit = first % 2 == 0 ? 1.0F : 0.5F;
            const auto shown = show(flagged(), QSize(200, 50), [first, lit](ImageFrame &frame) {
                auto *pixels = static_cast<float *>(const_cast<void *>(frame.planes[0]));
                for (int i = 0; i < 200 * 50; ++i)
                    std::fill_n(pixels + 4 * std::ptrdiff_t(i), 4, i % 5 == first ? lit : 0.0F);
            });
            const QPoint middle = m_picture->rect().center();
            const auto isGrey = [&](const QImage &picture) {
                bool grey = true;
                for (int x = -15; x <= 15; ++x)
                    grey = grey && qRed(picture.pixel(middle + QPoint(x, 0))) == qRound(51.0F * lit * lit);
                return grey;
            };
            QTRY_VERIFY(isGrey(onScreen()));
            QVERIFY(isGrey(m_picture->grabFramebuffer()));
        }
    }

    void unusableFrames_data()
    {
        addTable<Spoiling, std::size_t>(
            {"spoil", "textures"},
            {{"no planes", [](ImageFrame &frame) { frame.planes.clear(); }, 0},
             {"short planes", [](ImageFrame &frame) { frame.ownedPlanes.assign(4, {std::byte()}); }, 0},
             {"negative size", [](ImageFrame &frame) { frame.planeSizes[0].width = -1; }, 0},
             {"more planes than textures", [](ImageFrame &frame) { frame.textureCount = 3; }, 4},
             {"more textures than planes", [](ImageFrame &frame) { frame.textureCount = 100000; }, 4},
             {"a narrower plane", [](ImageFrame &frame) { frame.planeSizes[1].width = 8; }, 4}});
    }
    void unusableFrames()
    {
        QFETCH(Spoiling, spoil);
        const auto shown = show(stored(GL_R16F, GL_HALF_FLOAT, 1, 4), kFrame, spoil);
        m_picture->setHudOn(true);
        QTEST(shown->frame.textureNames.size(), "textures");
        QVERIFY(!m_picture->grabFramebuffer().isNull());
    }

    void whatOpenGlRefusesLeavesNoTexture()
    {
        for (const auto &[form, size, reason] :
             {std::tuple(stored(GL_R16F, GL_HALF_FLOAT, 1, 4), QSize(70000, 1), "larger than OpenGL allows"),
              {stored(0x7777, GL_FLOAT, 4), kFrame, "refused by OpenGL"}}) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QLatin1String(reason)));
            const auto shown = show(form, size);
            QVERIFY(shown->frame.textureNames.empty());
            QVERIFY(!m_picture->grabFramebuffer().isNull());
        }
    }

    void infinitiesLeaveTheOtherChannels()
    {
        const auto shown = show(stored(GL_RGBA32F, GL_FLOAT, 4), kPlace.size(), [](ImageFrame &frame) {
            auto *samples = static_cast<float *>(const_cast<void *>(frame.planeData(0)));
            for (int i = 0; i < kPlace.width() * kPlace.height(); ++i)
                std::copy_n(std::array{float(qInf()), 0.5F, 1.0F, 1.0F}.data(), 4,
                            samples + 4 * std::ptrdiff_t(i));
        });
        m_picture->setCalibration({.softClip = 0.0F});
        const QColor seen = m_picture->grabFramebuffer().pixelColor(30, 20);
        QVERIFY2(qAbs(seen.green() - 128) <= 1 && seen.blue() == 255, qPrintable(seen.name()));
    }

    void pictureIsGrabbedAtItsOwnPixels()
    {
        const auto shown = show(flagged(), QSize(90, 70));
        m_picture->setZoomFactor(2.0F);
        m_picture->setPan(QPoint(30, 20));
        m_picture->setHudOn(true);
        const QImage before = m_picture->grabFramebuffer();
        QCOMPARE(difference(m_picture->grabPicture(), {{}, shown->size}, shown.get()), QString());
        QCOMPARE(m_picture->grabFramebuffer(), before);
    }

    void texturesOutliveFullScreen()
    {
        const auto shown = show(stored(GL_R16F, GL_HALF_FLOAT, 1, 4), kFrame);
        const auto names = shown->frame.textureNames;
        QTRY_COMPARE(difference(onScreen(), {{}, kPlace.size()}, shown.get()), QString());
        m_picture->setParent(nullptr);
        m_picture->showFullScreen();
        QTRY_COMPARE(m_picture->size(), m_picture->screen()->size());
        QTRY_COMPARE(difference(onScreen(), {{}, m_picture->screen()->size()}, shown.get()), QString());
        m_picture->setParent(m_window.get());
        m_picture->setGeometry(kPlace);
        m_picture->show();
        QTRY_COMPARE(difference(onScreen(), {{}, kPlace.size()}, shown.get()), QString());
        QCOMPARE(shown->frame.textureNames, names);
        QCOMPARE(imageWidget::liveTextures(), 4);
    }

    void changesAloneRepaint_data()
    {
        addTable<Change>(
            {"change"},
            {{"calibration", [](imageWidget &picture) { picture.setCalibration({.gamma = 2.0F}); }},
             {"source gamma", [](imageWidget &picture) { picture.setSourceGamma(2.0F); }},
             {"channel", [](imageWidget &picture) { picture.setChannelViewMode(2); }},
             {"checker", [](imageWidget &picture) { picture.setCheckerOn(false); }},
             {"alpha", [](imageWidget &picture) { picture.setAlphaOn(false); }},
             {"HUD", [](imageWidget &picture) { picture.setHudOn(false); }},
             {"HUD's colour", [](imageWidget &picture) { picture.setHudColor(Qt::cyan); }},
             {"background", [](imageWidget &picture) { picture.setBackgroundColor(Qt::cyan); }},
             {"zoom", [](imageWidget &picture) { picture.setZoomFactor(3.0F); }},
             {"pan", [](imageWidget &picture) { picture.setPan(QPoint(5, 6)); }},
             {"a smaller view", [](imageWidget &picture) { picture.resize(399, 299); }},
             {"frame", [](imageWidget &picture) { picture.showFrame(nullptr); }}});
    }
    void changesAloneRepaint()
    {
        QFETCH(Change, change);
        const auto shown = show(flagged(), kLargePlace.size());
        m_picture->setHudOn(true);
        QCoreApplication::sendPostedEvents(m_picture);
        const QSignalSpy paints(m_picture, &imageWidget::frameSwapped);
        for (int times = 0; times < 2; ++times) {
            change(*m_picture);
            QCoreApplication::sendPostedEvents(m_picture);
            QCOMPARE(paints.size(), 1);
        }
    }

private:
    void compare(const PictureSetup &setup, const PictureFrame *shown)
    {
        m_picture->setCalibration(setup.look.calibration);
        m_picture->setSourceGamma(setup.look.sourceGamma);
        m_picture->setChannelViewMode(setup.look.channelViewMode);
        m_picture->setCheckerOn(setup.look.checkerOn);
        m_picture->setAlphaOn(setup.look.alphaOn);
        m_picture->setBackgroundColor(setup.look.background);
        m_picture->setZoomFactor(setup.zoom);
        m_picture->setPan(setup.pan);
        QCOMPARE(difference(m_picture->grabFramebuffer(), setup, shown), QString());
    }
};

QTEST_MAIN(PictureTest)
#include "tst_picture.moc"
