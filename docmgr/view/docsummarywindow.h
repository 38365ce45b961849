#pragma once
// The summary pane of single view: everything known about the first selected document
// as a block of 13 label/value lines. It keeps no document data; every paint asks the
// dialog's host afresh.
#include <QFrame>
#include <cstdint>

class DocBrowser;
class DocListHost;

class DocSummaryWindow : public QFrame {
    Q_OBJECT
public:
    // Shows the first selected row of `browser`, as `host` reads it.
    DocSummaryWindow(QWidget* parent, DocBrowser& browser, DocListHost& host);
    ~DocSummaryWindow() override;

    // Lines of the block.
    static constexpr int LINE_COUNT = 13;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    DocBrowser& browser_;
    DocListHost& host_;
    // Measured once with the pane's font.
    uint16_t labelWidth_ = 0;
    uint16_t charWidth_ = 0;
    uint16_t charHeight_ = 0;
    uint16_t dateWidth_ = 0;
    uint16_t timeWidth_ = 0;
    uint16_t timeLabelWidth_ = 0;
    uint16_t authorLabelWidth_ = 0;
};
