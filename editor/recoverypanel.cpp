#include "editor/recoverypanel.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

namespace vorlane::editor {

namespace {

constexpr int kFile = Qt::UserRole;          // of an entry
constexpr int kReadable = Qt::UserRole + 1;  // whether it can be recovered
constexpr QSize kListSize(460, 180);         // pixels

}  // namespace

RecoveryPanel::RecoveryPanel(const std::vector<AbandonedShow>& shows, QWidget* parent)
    : QDialog(parent), list_(new QListWidget(this)) {
    setObjectName(QStringLiteral("recovery"));
    setWindowTitle(tr("Diaporamas non enregistrés"));
    auto* told = new QLabel(
        tr("Le programme s'est arrêté avant que ces diaporamas ne soient enregistrés. Lequel voulez-vous retrouver ?"));
    told->setWordWrap(true);
    list_->setAccessibleName(windowTitle());
    list_->setWordWrap(true);
    list_->setSpacing(3);
    list_->setMinimumSize(kListSize);
    auto* buttons = new QDialogButtonBox(this);
    recover_ = buttons->addButton(tr("&Retrouver"), QDialogButtonBox::AcceptRole);
    drop_ = buttons->addButton(tr("&Supprimer"), QDialogButtonBox::DestructiveRole);
    const auto* later = buttons->addButton(tr("&Plus tard"), QDialogButtonBox::RejectRole);
    recover_->setDefault(true);
    connect(recover_, &QPushButton::clicked, this, &RecoveryPanel::Recover);
    connect(drop_, &QPushButton::clicked, this, &RecoveryPanel::Drop);
    connect(later, &QPushButton::clicked, this, &QDialog::reject);
    connect(list_, &QListWidget::itemDoubleClicked, recover_, &QPushButton::click);
    connect(list_, &QListWidget::currentRowChanged, this, &RecoveryPanel::ShowState);
    auto* column = new QVBoxLayout(this);
    column->addWidget(told);
    column->addWidget(list_);
    column->addWidget(buttons);
    for (const AbandonedShow& show : shows) Add(show);
    list_->setCurrentRow(0);
    ShowState();
}

void RecoveryPanel::Add(const AbandonedShow& show) {
    const QString name = show.origin.isEmpty() ? tr("Sans fichier") : QFileInfo(show.origin).completeBaseName();
    const QString when = locale().toString(show.when, QLocale::ShortFormat);
    const QString what = show.failure.isEmpty() ? tr("%Ln image(s)", nullptr, show.pictures) : show.failure;
    auto* entry = new QListWidgetItem(show.failure.isEmpty() ? tr("%1, %2 : %3").arg(when, name, what)
                                                             : tr("%1 : %2").arg(when, what));
    entry->setData(kFile, show.file);
    entry->setData(kReadable, show.failure.isEmpty());
    list_->addItem(entry);
}

QString RecoveryPanel::ChosenFile() const {
    const QListWidgetItem* entry = list_->currentItem();
    return entry == nullptr ? QString() : entry->data(kFile).toString();
}

void RecoveryPanel::ShowState() {
    const QListWidgetItem* entry = list_->currentItem();
    recover_->setEnabled(entry != nullptr && entry->data(kReadable).toBool());
    drop_->setEnabled(entry != nullptr);
}

void RecoveryPanel::Recover() {
    const QString file = ChosenFile();
    accept();
    Q_EMIT recoverAsked(file);
}

void RecoveryPanel::Drop() {
    const QString file = ChosenFile();
    delete list_->takeItem(list_->currentRow());
    if (list_->count() == 0) accept();
    Q_EMIT dropAsked(file);
}

}  // namespace vorlane::editor
