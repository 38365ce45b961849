#pragma once
#include <QDialog>
#include <array>
#include <cstdint>

class ImplDocConfig;
class QListWidget;
class QGroupBox;
class QPushButton;
class QToolButton;

// Orders the 20 columns of one group and sets the frozen count; result 1 after OK.
// The list shows the 20 slots' titles with one separator line among them: the entries
// above it are the frozen columns.
class DocColumnsDialog : public QDialog {
    Q_OBJECT
public:
    DocColumnsDialog(QWidget* parent, ImplDocConfig* config, unsigned short group);
    ~DocColumnsDialog() override;

    // The separator line between the frozen and the scrolling columns.
    static const QString& SeparatorText();

    void SelectHdl();  // list selection: up/down enabled unless at the list's ends
    void UpHdl();
    void DownHdl();
    void OKHdl();

    // The dialog's copy of the group's column ids, slot by slot.
    const std::array<uint16_t, 20>& GetColumnOrder() const { return columnOrder_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // The controls and their layout.
    void BuildControls();
    // Position of the first entry whose text is the separator's.
    int SeparatorPos() const;
    // Exchanges list entries `a` and `a + 1` and selects `select`.
    void SwapEntries(int a, int select);
    // Exchanges the ids of the slots behind the list entries `upper` and `upper + 1`.
    void SwapSlots(int upper);

    ImplDocConfig* config_;
    unsigned short group_;
    QListWidget* columnList_;
    QGroupBox* frame_;
    QPushButton* okButton_;
    QPushButton* cancelButton_;
    QToolButton* upButton_;
    QToolButton* downButton_;
    std::array<uint16_t, 20> columnOrder_{};
};
