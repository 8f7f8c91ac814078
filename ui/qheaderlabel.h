#pragma once

#include <QtWidgets/QWidget>

/// The title of a skinned dialog: one line no higher than the header allows, elided at the right; the tooltip shows
/// the whole of an elided title. Plain text, shortened.
class QHeaderLabel final : public QWidget {
    Q_OBJECT

public:
    explicit QHeaderLabel(const QString &text, QWidget *parent = nullptr);

    QString text() const { return m_text; }
    void setText(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QFont fittedFont() const;

    QString m_text;
};
