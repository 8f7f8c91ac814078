#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtGui/QPalette>

/// The palettes of desktops as artists have them.
struct Desktop {
    QString name;
    QPalette palette;
};

inline QPalette desktopPalette(QRgb window, QRgb base, QRgb button, QRgb text, QRgb highlight,
                               QRgb highlightedText)
{
    QPalette palette(QColor(text), QColor(button), Qt::white, Qt::black, Qt::gray, QColor(text), Qt::white,
                     QColor(base), QColor(window));
    palette.setColor(QPalette::Highlight, QColor(highlight));
    palette.setColor(QPalette::HighlightedText, QColor(highlightedText));
    palette.setColor(QPalette::ToolTipBase, QColor(window));
    palette.setColor(QPalette::ToolTipText, QColor(text));
    return palette;
}

inline QList<Desktop> desktops()
{
    return {
        {QStringLiteral("light"), desktopPalette(0xeff0f1, 0xffffff, 0xfcfcfc, 0x232629, 0x3daee9, 0xffffff)},
        {QStringLiteral("dark"), desktopPalette(0x2a2e32, 0x1b1e20, 0x31363b, 0xfcfcfc, 0x3daee9, 0xfcfcfc)},
        {QStringLiteral("contrast-light"),
         desktopPalette(0xffffff, 0xffffff, 0xffffff, 0x000000, 0x000080, 0xffffff)},
        {QStringLiteral("contrast-dark"),
         desktopPalette(0x000000, 0x000000, 0x000000, 0xffffff, 0x1aebff, 0x000000)},
    };
}
