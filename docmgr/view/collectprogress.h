#pragma once
// Shows how far a long collection has got (directories and documents read so far)
// once it has run for a while; a short one shows only the wait pointer.
#include <QElapsedTimer>
#include <QPointer>
#include <QString>
#include <cstddef>

class QProgressDialog;
class QWidget;

class CollectProgress {
public:
    explicit CollectProgress(QWidget* parent);
    ~CollectProgress();

    // How long a collection runs before its progress is shown (ms).
    static void SetDelay(int ms);

    void Start();
    // Called by the row list now and then; shows and updates the progress after the delay.
    void Update(size_t dirs, size_t docs);
    void Finish();

    // Whether the last collection showed its progress, and the text it showed last.
    bool WasShown() const { return shown_; }
    const QString& LastText() const { return lastText_; }

private:
    QWidget* parent_;
    QPointer<QProgressDialog> dialog_;
    QElapsedTimer started_;
    QElapsedTimer lastUpdate_;
    bool running_ = false;
    bool shown_ = false;
    QString lastText_;
};
