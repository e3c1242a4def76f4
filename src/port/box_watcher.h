#pragma once

#include <QJsonArray>
#include <QObject>

class QDialog;
class QFileDialog;
class QMessageBox;
class QPrintDialog;

namespace qt {
class FontBox;
}

namespace port {

/// Sees each box and dialog as it comes up, notes what it says, and answers it by its own buttons.
class BoxWatcher final : public QObject {
public:
    BoxWatcher();

    /// Answers for the boxes to come, in order.
    void queue(const QJsonArray& answers);
    /// What came up since the last call.
    QJsonArray takeSeen();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void answer(QDialog* dialog);
    void answerMessage(QMessageBox* box);
    void answerQuestion(QMessageBox* box);
    void answerFile(QFileDialog* dialog);
    void answerPrint(QPrintDialog* dialog);
    void answerFont(qt::FontBox* dialog);
    QJsonValue next();

    QJsonArray answers_;
    QJsonArray seen_;
};

}  // namespace port
