#include "editor/editorwindow.h"

#include "editor/caption.h"
#include "editor/emptypage.h"
#include "editor/look.h"
#include "editor/slidesize.h"
#include "editor/statuspanel.h"
#include "widgets/vorlanewidget.h"

#include <utility>

#include <QAction>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QIcon>
#include <QKeyEvent>
#include <QMimeData>
#include <QSettings>
#include <QStackedWidget>
#include <QStatusBar>
#include <QWheelEvent>

namespace vorlane::editor {

namespace {

constexpr QSize kUsualSize(1080, 740);

// The one local folder that is dragged; an empty text for anything else.
QString FolderOf(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    const QString path = urls.size() == 1 ? urls.first().toLocalFile() : QString();
    return QFileInfo(path).isDir() ? path : QString();
}

}  // namespace

EditorWindow::EditorWindow(QSettings& settings, ThumbnailOptions thumbnails, QWidget* parent)
    : QMainWindow(parent),
      settings_(settings),
      thumbnails_(std::move(thumbnails)),
      pages_(new QStackedWidget(this)),
      empty_(new EmptyPage(this)),
      sheet_(new VorlaneWidget(this)),
      provider_(new ThumbnailProvider(*sheet_, thumbnails_)),
      status_(new StatusPanel(this)) {
    setWindowIcon(QIcon(QStringLiteral(":/editor/icons/vorlane.svg")));
    setAcceptDrops(true);
    pages_->addWidget(empty_);
    pages_->addWidget(sheet_);
    setCentralWidget(pages_);
    statusBar()->addWidget(status_, 1);
    statusBar()->setSizeGripEnabled(false);
    sheet_->installEventFilter(this);

    connect(sheet_, &VorlaneWidget::OnAdded, this,
            [this](int index, const QString& file) { sheet_->SetCaptionBottom(index, CaptionOf(file, locale())); });
    MakeMenus();
    ConnectReader();
    ApplyLook(*sheet_, palette());
    Retranslate();
    RestoreState();
    ShowPage(false);
}

EditorWindow::~EditorWindow() {
    delete provider_;  // before the service that it serves from
    delete std::exchange(sheet_, nullptr);
}

void EditorWindow::RestoreState() {
    resize(kUsualSize);
    restoreGeometry(settings_.value(QStringLiteral("window/geometry")).toByteArray());
    connect(status_, &StatusPanel::slideWidthChanged, this, &EditorWindow::SetSlideWidth);
    status_->setSlideWidth(settings_.value(QStringLiteral("slideWidth"), slidesize::kUsual).toInt());
    SetSlideWidth(status_->slideWidth());
}

void EditorWindow::SetSlideWidth(int width) {
    const QSize size = slidesize::Of(width);
    sheet_->DiapoSizeChange(true, size.width(), size.height());
}

void EditorWindow::Retranslate() {
    NameMenus();
    ShowEmptyTexts();
    ShowStatus();
}

// --- Events ---

void EditorWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) Retranslate();
    if (event->type() != QEvent::PaletteChange || !sheet_) return;
    ApplyLook(*sheet_, palette());
    ShowSheet();
}

void EditorWindow::closeEvent(QCloseEvent* event) {
    if (!isFullScreen()) settings_.setValue(QStringLiteral("window/geometry"), saveGeometry());
    settings_.setValue(QStringLiteral("slideWidth"), status_->slideWidth());
    QMainWindow::closeEvent(event);
}

void EditorWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (FolderOf(*event->mimeData()).isEmpty()) return;
    event->acceptProposedAction();
    empty_->setDropping(true);
}

void EditorWindow::dragLeaveEvent(QDragLeaveEvent*) {
    empty_->setDropping(false);
}

void EditorWindow::dropEvent(QDropEvent* event) {
    empty_->setDropping(false);
    const QString folder = FolderOf(*event->mimeData());
    if (folder.isEmpty()) return;
    event->acceptProposedAction();
    openFolder(folder);
}

// The wheel with Ctrl over the sheet changes the size of the slides; what the user does there may change the selection.
bool EditorWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched != sheet_) return QMainWindow::eventFilter(watched, event);
    if (event->type() == QEvent::Wheel) return Zoom(static_cast<const QWheelEvent&>(*event));
    if (event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::KeyRelease)
        QMetaObject::invokeMethod(
            this, [this] { ShowStatus(); }, Qt::QueuedConnection);
    return false;
}

bool EditorWindow::Zoom(const QWheelEvent& wheel) {
    if (!(wheel.modifiers() & Qt::ControlModifier)) return false;
    const int width = status_->slideWidth();
    const int turned = wheel.angleDelta().y();
    if (turned != 0) status_->setSlideWidth(turned > 0 ? slidesize::Larger(width) : slidesize::Smaller(width));
    return true;
}

void EditorWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && isFullScreen()) return toggleFullScreen();
    QMainWindow::keyPressEvent(event);
}

void EditorWindow::toggleFullScreen() {
    setWindowState(windowState() ^ Qt::WindowFullScreen);
    menus_.fullScreen->setChecked(isFullScreen());
}

void EditorWindow::chooseFolder() {
    const QString chosen = QFileDialog::getExistingDirectory(this, tr("Ouvrir un dossier"), folder_);
    if (!chosen.isEmpty()) openFolder(chosen);
}

}  // namespace vorlane::editor
