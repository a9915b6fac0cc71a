// EmptyPage: what the window shows in place of slides when there are none: why, and what to do about it.
#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace vorlane::editor {

class EmptyPage : public QWidget {
    Q_OBJECT

public:
    explicit EmptyPage(QWidget* parent = nullptr);

    void setTexts(const QString& title, const QString& hint, const QString& button);
    // While something is dragged over the window that it would take.
    void setDropping(bool dropping);
    QString title() const;

Q_SIGNALS:
    void openRequested();

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void ApplyPalette();

    QLabel* title_;
    QLabel* hint_;
    QPushButton* button_;
    bool dropping_ = false;
};

}  // namespace vorlane::editor
