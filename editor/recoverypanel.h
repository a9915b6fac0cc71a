// RecoveryPanel: asks the user what is to become of the shows that programs left which broke off. It touches no file:
// it tells what the user wants.
#pragma once

#include "editor/recovery.h"

#include <QDialog>

class QListWidget;
class QPushButton;

namespace vorlane::editor {

class RecoveryPanel : public QDialog {
    Q_OBJECT

public:
    // In the order of the list; the first one is chosen.
    explicit RecoveryPanel(const std::vector<AbandonedShow>& shows, QWidget* parent = nullptr);

Q_SIGNALS:
    // The panel closes. The others stay for another time.
    void recoverAsked(const QString& file);
    // It goes from the list; with the last one the panel closes.
    void dropAsked(const QString& file);

private:
    void Add(const AbandonedShow& show);
    QString ChosenFile() const;
    void ShowState();
    void Recover();
    void Drop();

    QListWidget* list_;
    QPushButton* recover_ = nullptr;
    QPushButton* drop_ = nullptr;
};

}  // namespace vorlane::editor
