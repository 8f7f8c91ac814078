#pragma once

#include "eventsmodel.h"

#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <array>

class QMenu;
class QTreeView;

/// The columns of the events list: how wide they are, which show, in what order, and what the list is sorted by.
/// Remembers what the user chose. Message takes what the others leave; where that is too little, those with long texts
/// give way. The list, whose model is an EventsModel, owns this.
class EventColumns final : public QObject {
    Q_OBJECT

public:
    explicit EventColumns(QTreeView *view);

    /// To be called once the list has its model. Measures no text: fonts are no part of a start.
    void setUp();
    /// What the header's menu offers; its owner may show it elsewhere too.
    QMenu *menu() { return m_menu; }

    /// The list comes up, or looks otherwise: what was remembered is taken up the first time, texts are measured anew.
    void show();
    /// Remembers what the user chose.
    void save();
    /// Shares the list's width out.
    void fit();
    /// A row came; its texts count from the next measureNew() on.
    void noteNew(int row);
    void measureNew();

private:
    struct Width {
        int least = 0; // shows the header
        int wanted = 0; // shows the texts so far
        int chosen = 0; // by the user; 0: none
    };

    void buildMenu();
    void updateMenu();
    void load();
    void loadColumn(const QString &entry, int &visual);
    void reset();
    QStringList columnsInWords() const;
    QString sortingInWords() const;
    void sortBy(int column);
    void measureHeader();
    void measureRow(int row);
    void noteResize(int column, int width);
    void setShown(int column, bool shown);
    bool isElastic(int column) const;
    std::array<int, EventsModel::ColumnCount> shares(int available) const;

    QTreeView *m_view;
    QMenu *m_menu;
    QMenu *m_sortMenu;
    std::array<Width, EventsModel::ColumnCount> m_widths;
    QStringList m_savedColumns;
    QString m_savedSorting;
    int m_firstNew = 0;
    bool m_shown = false;
    bool m_fitting = false;
};
