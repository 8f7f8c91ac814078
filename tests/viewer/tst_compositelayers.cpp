#include <viewer/frames/compositelayers.h>

#include <QtTest/QTest>

#include <tuple>

namespace {

/// Blank-separated; "-" is the layer without a name.
std::set<std::string> namesOf(const QByteArray &text)
{
    std::set<std::string> names;
    for (const QByteArray &name : text.split(' '))
        names.insert(name == "-" ? std::string() : name.toStdString());
    return names;
}

QByteArray joined(const std::vector<std::string> &names)
{
    QByteArrayList list;
    for (const std::string &name : names)
        list << QByteArray::fromStdString(name);
    return list.join(' ');
}

} // namespace

class CompositeLayersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void layers()
    {
        // Names and what they are listed as; the entry that is chosen, and the one that it leads to with its textures.
        const std::tuple<QByteArray, QByteArray, std::string, bool, QByteArray, QByteArray> files[] = {
            {"-", "Default", "Default", true, "Default", ""},
            {"R G B Z", "RGB Z", "", false, "RGB", "R G B"},
            {"R G B Z", "RGB Z", "Default", true, "RGB", "R G B"},
            {"R G B Z", "RGB Z", "spec.R", false, "spec.R", ""},
            {"R G B A p.R p.G p.B -", "p.RGB RGBA Default", "Default", false, "RGBA", "R G B A"},
            {"R G B A p.R p.G p.B -", "p.RGB RGBA Default", "spec.R", true, "RGBA", "R G B A"},
            {"R G A r g b", "A G R b g r", "G", true, "G", ""},
            {"R G B A Y BY RY", "YCbCr RGBA", "YCbCr", true, "YCbCr", "Y BY RY"},
            {"d.R d.G d.B d.A spec.R A", "d.RGBA A spec.R", "", true, "d.RGBA", "d.R d.G d.B d.A"},
            {"a.R a.G a.B b.Y b.BY b.RY b.A xR xG xB", "b.YCbCrA a.RGB xB xG xR", "", true, "b.YCbCrA",
             "b.Y b.BY b.RY b.A"}};
        for (const auto &[names, entries, chosen, fresh, resolved, textures] : files) {
            const LayerList list = listLayers(namesOf(names));
            QCOMPARE(joined(list.entries), entries);
            const std::string entry = list.resolved(chosen, fresh);
            QCOMPARE(QByteArray::fromStdString(entry), resolved);
            const CompositeLayer *composite = list.composite(entry);
            QCOMPARE(composite ? joined(composite->members) : QByteArray(), textures);
        }
    }
};

QTEST_APPLESS_MAIN(CompositeLayersTest)
#include "tst_compositelayers.moc"
