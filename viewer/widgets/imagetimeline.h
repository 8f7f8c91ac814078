#pragma once

#include <QtWidgets/QWidget>

#include <set>

class imageTimeline : public QWidget {
    Q_OBJECT

public:
    explicit imageTimeline(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    Q_INVOKABLE size_t getLength() const;

public Q_SLOTS:
    void setFrames(std::set<long> _frames);
    void setRange(long startFrame, long endFrame);
    bool setByFrame(long step);
    void setPosition(long frame);
    bool moveNext();
    bool movePrevious();
    void moveFirst();
    void moveLast();

Q_SIGNALS:
    void frameChanged(int frame, bool addChunk, bool addFrame, bool removeChunk, bool removeFrame);
    void frameScrubbed(int frame, bool addChunk, bool addFrame, bool removeChunk, bool removeFrame);
};
