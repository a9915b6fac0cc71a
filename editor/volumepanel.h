// VolumePanel: how loud the sounds of one slide are, a slider each, in percent.
#pragma once

#include <vector>

#include <QDialog>
#include <QString>

class QFormLayout;
class QSlider;

namespace vorlane::editor {

class VolumePanel : public QDialog {
    Q_OBJECT

public:
    explicit VolumePanel(QWidget* parent = nullptr);

    // A slider more; gives its number.
    int addVolume(const QString& name, int percent);
    int volume(int number) const;

private:
    QFormLayout* rows_;
    std::vector<QSlider*> sliders_;
};

}  // namespace vorlane::editor
