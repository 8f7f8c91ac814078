#pragma once

#include <QtWidgets/QScrollArea>

/// One page of options: wants to be as large as what is on it, and scrolls upwards and downwards where there is no room. It is
/// never narrower than its fields need, so that none of them is cut off.
class PageArea final : public QScrollArea {
    Q_OBJECT

public:
    explicit PageArea(QWidget *parent = nullptr);

    /// Brings the size hints of a window that was not on screen yet in line with the style, which may want larger fonts.
    static void settleSizes(QWidget &window);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;

private:
    /// With room for a bar, or a page that gets one would need more width.
    QSize withBar(QSize size) const;
};
