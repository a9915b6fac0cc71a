#include "editor/volumepanel.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

namespace vorlane::editor {

namespace {

constexpr int kLoudest = 100;
constexpr int kSliderWidth = 220;  // pixels

}  // namespace

VolumePanel::VolumePanel(QWidget* parent) : QDialog(parent), rows_(new QFormLayout) {
    setWindowTitle(tr("Volumes"));
    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(tr("&Appliquer"), QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(tr("A&nnuler"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addLayout(rows_);
    column->addSpacing(8);
    column->addWidget(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
}

int VolumePanel::addVolume(const QString& name, int percent) {
    auto* slider = new QSlider(Qt::Horizontal, this);
    auto* told = new QLabel(this);
    const auto tell = [told](int value) { told->setText(tr("%L1 %").arg(value)); };
    connect(slider, &QSlider::valueChanged, told, tell);
    slider->setRange(0, kLoudest);
    slider->setPageStep(10);
    slider->setMinimumWidth(kSliderWidth);
    slider->setAccessibleName(name);
    slider->setValue(percent);
    tell(slider->value());
    told->setMinimumWidth(told->fontMetrics().horizontalAdvance(tr("%L1 %").arg(kLoudest)));
    told->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* row = new QHBoxLayout;
    row->addWidget(slider);
    row->addWidget(told);
    rows_->addRow(name, row);
    sliders_.push_back(slider);
    return static_cast<int>(sliders_.size()) - 1;
}

int VolumePanel::volume(int number) const {
    return sliders_.at(static_cast<size_t>(number))->value();
}

}  // namespace vorlane::editor
