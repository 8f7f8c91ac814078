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
        const std::tuple<QByteArray, QByteArray, std::string, QByteArray, QByteArray> files[] = {
            {"-", "Default", "Default", "Default", ""},
            {"R G B Z", "RGB Z", "Default", "RGB", "R G B"},
            {"R G B Z", "RGB Z", "RGBA", "RGB", "R G B"},
            {"R G B A Z", "RGBA Z", "RGB", "RGBA", "R G B A"},
            {"R G B A Z", "RGBA Z", "spec.R", "RGBA", "R G B A"},
            {"R G B A p.R p.G p.B -", "p.RGB RGBA Default", "Default", "RGBA", "R G B A"},
            {"R G B A p.R p.G p.B -", "p.RGB RGBA Default", "p.RGBA", "p.RGB", "p.R p.G p.B"},
            {"R G A r g b", "A G R b g r", "G", "G", ""},
            {"R G B A Y BY RY", "YCbCr RGBA", "YCbCrA", "YCbCr", "Y BY RY"},
            {"d.R d.G d.B d.A spec.R A", "d.RGBA A spec.R", "", "d.RGBA", "d.R d.G d.B d.A"},
            {"a.R a.G a.B b.Y b.BY b.RY b.A xR xG xB", "b.YCbCrA a.RGB xB xG xR", "", "b.YCbCrA",
             "b.Y b.BY b.RY b.A"},
            // What a file opens on
            {"R G B d.R d.G d.B d.A", "d.RGBA RGB", "", "RGB", "R G B"},
            {"Y BY RY d.R d.G d.B d.A", "d.RGBA YCbCr", "", "YCbCr", "Y BY RY"},
            {"left.R left.G left.B right.R right.G right.B", "right.RGB left.RGB", "", "left.RGB",
             "left.R left.G left.B"},
            {"AO.R AO.G AO.B Combined.R Combined.G Combined.B Combined.A Trans.R Trans.G Trans.B",
             "Trans.RGB Combined.RGBA AO.RGB", "", "Combined.RGBA",
             "Combined.R Combined.G Combined.B Combined.A"},
            {"A Y d.R d.G d.B d.A", "d.RGBA A Y", "", "Y", ""}};
        for (const auto &[names, entries, chosen, resolved, textures] : files) {
            const LayerList list = listLayers(namesOf(names));
            QCOMPARE(joined(list.entries), entries);
            const std::string entry = list.resolved(chosen);
            QCOMPARE(QByteArray::fromStdString(entry), resolved);
            const CompositeLayer *composite = list.composite(entry);
            QCOMPARE(composite ? joined(composite->members) : QByteArray(), textures);
        }
    }
};

QTEST_APPLESS_MAIN(CompositeLayersTest)
#include "tst_compositelayers.moc"
