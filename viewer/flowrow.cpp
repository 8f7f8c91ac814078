#include "flowrow.h"

#include <QtCore/QChildEvent>
#include <QtWidgets/QLayout>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

constexpr int kGap = 6; // between items
constexpr int kLineGap = 2;

class FlowLayout final : public QLayout {
public:
    explicit FlowLayout(QWidget *parent)
        : QLayout(parent)
    {
        setContentsMargins(0, 0, 0, 0);
    }

    void addItem(QLayoutItem *item) override { m_items.emplace_back(item); }
    int count() const override { return int(m_items.size()); }
    QLayoutItem *itemAt(int index) const override
    {
        return index >= 0 && index < count() ? m_items[std::size_t(index)].get() : nullptr;
    }
    QLayoutItem *takeAt(int index) override
    {
        if (index < 0 || index >= count())
            return nullptr;
        QLayoutItem *item = m_items[std::size_t(index)].release();
        m_items.erase(m_items.begin() + index);
        return item;
    }

    Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;

private:
    struct Line {
        std::vector<QLayoutItem *> items;
        int width = 0; // at least, with the gaps
        int height = 0;
    };

    std::vector<Line> lines(int width) const;
    /// What is left goes before `last`.
    static void place(const Line &line, const QRect &rect, const QLayoutItem *last);

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
};

std::vector<FlowLayout::Line> FlowLayout::lines(int width) const
{
    std::vector<Line> lines;
    for (const auto &item : m_items) {
        if (item->isEmpty())
            continue;
        const QSize size(item->minimumSize().width(), item->sizeHint().height());
        if (lines.empty() || lines.back().width + kGap + size.width() > width)
            lines.emplace_back();
        Line &line = lines.back();
        line.width += size.width() + (line.items.empty() ? 0 : kGap);
        line.height = std::max(line.height, size.height());
        line.items.push_back(item.get());
    }
    return lines;
}

int FlowLayout::heightForWidth(int width) const
{
    int height = 0;
    for (const Line &line : lines(width))
        height += line.height + (height > 0 ? kLineGap : 0);
    return height;
}

QSize FlowLayout::sizeHint() const
{
    QSize size;
    for (const auto &item : m_items) {
        if (item->isEmpty())
            continue;
        const QSize wanted = item->sizeHint();
        size = {std::max(size.width(), 0) + wanted.width() + kGap, std::max(size.height(), wanted.height())};
    }
    return size;
}

QSize FlowLayout::minimumSize() const
{
    QSize size(0, 0);
    for (const auto &item : m_items) {
        if (!item->isEmpty())
            size = size.expandedTo({item->minimumSize().width(), item->sizeHint().height()});
    }
    return size;
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    int top = rect.top();
    const std::vector<Line> all = lines(rect.width());
    for (const Line &line : all) {
        place(line, {rect.left(), top, rect.width(), line.height}, all.back().items.back());
        top += line.height + kLineGap;
    }
}

void FlowLayout::place(const Line &line, const QRect &rect, const QLayoutItem *last)
{
    const auto expands = [](const QLayoutItem *item) {
        return item->expandingDirections().testFlag(Qt::Horizontal);
    };
    int left = std::max(rect.width() - line.width, 0);
    auto sharing = int(std::count_if(line.items.begin(), line.items.end(), expands));
    std::vector<int> widths;
    // From the end: the most goes to the first.
    for (auto item = line.items.rbegin(); item != line.items.rend(); ++item) {
        int width = std::min((*item)->minimumSize().width(), rect.width());
        if (expands(*item)) {
            const int share = sharing > 1 ? left / (2 * sharing) : left;
            const int gained = std::clamp(share, 0, (*item)->maximumSize().width() - width);
            --sharing;
            left -= gained;
            width += gained;
        }
        widths.push_back(width);
    }
    int x = rect.left();
    for (QLayoutItem *item : line.items) {
        if (item == last && item != line.items.front())
            x += left;
        item->setGeometry({x, rect.top(), widths.back(), rect.height()});
        x += widths.back() + kGap;
        widths.pop_back();
    }
}

} // namespace

FlowRow::FlowRow(QWidget *parent)
    : QWidget(parent)
{
    setLayout(new FlowLayout(this));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
}

void FlowRow::childEvent(QChildEvent *event)
{
    auto *child = event->added() ? qobject_cast<QWidget *>(event->child()) : nullptr;
    if (child && !child->isWindow())
        layout()->addWidget(child);
    QWidget::childEvent(event);
}
