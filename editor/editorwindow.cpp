#include "editor/editorwindow.h"

#include "editor/caption.h"
#include "editor/emptypage.h"
#include "editor/filefilters.h"
#include "editor/focusring.h"
#include "editor/infoballoon.h"
#include "editor/look.h"
#include "editor/navigator.h"
#include "editor/renamer.h"
#include "editor/show.h"
#include "editor/showkeeper.h"
#include "editor/showplayer.h"
#include "editor/slidedrags.h"
#include "editor/slidesize.h"
#include "editor/soundbuttons.h"
#include "editor/statuspanel.h"
#include "editor/strip.h"
#include "editor/stripmenu.h"
#include "editor/stripsounds.h"
#include "editor/waitnotice.h"
#include "widgets/vorlanewidget.h"

#include <utility>

#include <QAction>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QFileDialog>
#include <QIcon>
#include <QKeyEvent>
#include <QSettings>
#include <QStackedWidget>
#include <QStatusBar>
#include <QUrl>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace vorlane::editor {

namespace {

constexpr QSize kUsualSize(1080, 740);

}  // namespace

EditorWindow::EditorWindow(QSettings& settings, ThumbnailOptions thumbnails, QWidget* parent)
    : QMainWindow(parent),
      settings_(settings),
      thumbnails_(std::move(thumbnails)),
      pages_(new QStackedWidget(this)),
      empty_(new EmptyPage(this)),
      sheetPage_(new QWidget(this)),
      sheet_(new VorlaneWidget(this)),
      show_(new Show(*sheet_, this)),
      navigator_(new Navigator(*sheet_, *show_, this)),
      drags_(new SlideDrags(*sheet_, *show_, *navigator_, this)),
      renamer_(new Renamer(*sheet_, *show_, *navigator_, this)),
      provider_(new ThumbnailProvider(*sheet_, thumbnails_)),
      strip_(new Strip(*sheet_, this)),
      sounds_(new StripSounds(*strip_, *sheet_, *show_, this)),
      buttons_(new SoundButtons(
          *sheet_, *show_, [this](int key, bool comment) { return SoundOf(key, comment); }, this)),
      soundMenu_(nullptr),
      status_(new StatusPanel(this)),
      opener_([](const QString& path) { return QDesktopServices::openUrl(QUrl::fromLocalFile(path)); }) {
    setWindowTitle(QStringLiteral("Vorlane[*]"));
    setWindowIcon(QIcon(QStringLiteral(":/editor/icons/vorlane.svg")));
    pages_->addWidget(empty_);
    pages_->addWidget(sheetPage_);
    auto* column = new QVBoxLayout(sheetPage_);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addStretch();  // take what the sheet can't
    column->addWidget(sheet_, 1);
    column->addWidget(strip_);
    column->addStretch();
    setCentralWidget(pages_);
    statusBar()->addWidget(status_, 1);
    statusBar()->setSizeGripEnabled(false);
    sheet_->installEventFilter(this);
    new FocusRing(*sheet_, *navigator_);
    ShowInfoBalloons(*sheet_);
    ShowWaitDuringLongWork(*sheet_, *show_);

    connect(sheet_, &VorlaneWidget::OnAdded, this,
            [this](int index, const QString& file) { sheet_->SetCaptionBottom(index, CaptionOf(file, locale())); });
    MakeKeeper();
    MakeMenus();
    ConnectReader();
    ConnectShow();
    ConnectDrags();
    ConnectStrip();
    ApplyLook(*sheet_, palette());
    strip_->applyLook(palette());
    RestoreState();
    Retranslate();
    ShowPage();
}

EditorWindow::~EditorWindow() {
    show_->undoStack().disconnect(this);
    delete keeper_;    // it hears of the show
    delete provider_;  // before the service that it serves from
    delete soundMenu_;
    delete buttons_;
    delete sounds_;
    delete std::exchange(sheet_, nullptr);
}

void EditorWindow::RestoreState() {
    const Preferences preferences = Preferences::Load(settings_);
    resize(kUsualSize);
    restoreGeometry(preferences.geometry);
    connect(status_, &StatusPanel::slideWidthChanged, this, &EditorWindow::SetSlideWidth);
    status_->setSlideWidth(preferences.slideWidth);
    SetSlideWidth(status_->slideWidth());
    show_->setOrder(preferences.sort);
    strip_->SetExpositionTime(preferences.exposition);
    SetSideways(preferences.horizontal);
    ShowArrangement();
}

void EditorWindow::SetSlideWidth(int width) {
    const QSize size = slidesize::Of(width);
    FitRow();
    sheet_->DiapoSizeChange(true, size.width(), size.height());
}

void EditorWindow::Retranslate() {
    sheet_->setAccessibleName(tr("Planche de diapositives"));
    NameMenus();
    soundMenu_->retranslate();
    ShowEmptyTexts();
    ShowStatus();
}

// --- Events ---

void EditorWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) Retranslate();
    if (event->type() != QEvent::PaletteChange || !sheet_) return;
    ApplyLook(*sheet_, palette());
    strip_->applyLook(palette());
    ShowSheet();
}

void EditorWindow::closeEvent(QCloseEvent* event) {
    soundMenu_->endRecording();
    if (keeper_->isModified()) {
        event->ignore();
        return Leave([this] {
            keeper_->abandon();
            close();
        });
    }
    const bool sideways = sheet_->ScrollDirection() == ui::ScrollDirection::sdHorizontal;
    const QByteArray geometry = isFullScreen() ? QByteArray() : saveGeometry();
    Preferences{geometry, status_->slideWidth(), show_->order(), sideways, strip_->ExpositionTime()}.Save(settings_);
    QMainWindow::closeEvent(event);
}

// The wheel with Ctrl over the sheet changes the size of the slides.
bool EditorWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched != sheet_) return QMainWindow::eventFilter(watched, event);
    if (event->type() == QEvent::Wheel) return Zoom(static_cast<const QWheelEvent&>(*event));
    if (event->type() == QEvent::ContextMenu) return ShowContextMenu(static_cast<const QContextMenuEvent&>(*event));
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
    if (!chosen.isEmpty()) Leave([this, chosen] { openFolder(chosen); });
}

void EditorWindow::chooseFiles() {
    const QString filter = FilterFor(FileKind::Picture);
    addFiles(QFileDialog::getOpenFileNames(this, tr("Ajouter des images"), folder_, filter));
}

}  // namespace vorlane::editor
