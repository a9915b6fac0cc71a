// EditorWindow: the editor's main window. It shows the pictures of a folder on a sheet.
//
// Nothing of it blocks: a folder is read on a thread and comes onto the sheet in slices, pictures are decoded by the
// thumbnail service.
#pragma once

#include "editor/folderreader.h"
#include "editor/recentfolders.h"
#include "widgets/thumbnailprovider.h"
#include "widgets/thumbnailservice.h"

#include <QElapsedTimer>
#include <QMainWindow>
#include <QTimer>

class QMenu;
class QSettings;
class QStackedWidget;

namespace vorlane {
class VorlaneWidget;
}

namespace vorlane::editor {

class EmptyPage;
class StatusPanel;

class EditorWindow : public QMainWindow {
    Q_OBJECT

public:
    // settings outlives the window.
    explicit EditorWindow(QSettings& settings, ThumbnailOptions thumbnails = {}, QWidget* parent = nullptr);
    ~EditorWindow() override;

    // Reads the folder and shows it. What is shown stays until the folder is open, and for good when it can't be read.
    void openFolder(const QString& folder);
    QString folder() const { return folder_; }
    // How many pictures are on the sheet's list.
    int count() const { return count_; }
    // Whether all that was asked for is read and all slides show what they should.
    bool isSettled() const;

    VorlaneWidget& sheet() const { return *sheet_; }
    ThumbnailService& thumbnails() { return thumbnails_; }
    StatusPanel& status() const { return *status_; }

public Q_SLOTS:
    void chooseFolder();
    void toggleFullScreen();

Q_SIGNALS:
    void settled();
    void folderFailed(const QString& folder);

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    // editorwindow.cpp
    void Retranslate();
    void RestoreState();
    void SetSlideWidth(int width);
    bool Zoom(const QWheelEvent& wheel);

    // editorwindow_menus.cpp
    void MakeMenus();
    void NameMenus();
    void FillRecentMenu();

    // editorwindow_folder.cpp
    void ConnectReader();
    void Opened(const QString& folder, int total);
    void Failed(const QString& folder);
    void ShowPage(bool slides);
    void TakeSlice();
    void ShowSheet();
    void ShowStatus();
    void ShowEmptyTexts();
    void CheckSettled();

    QSettings& settings_;
    RecentFolders recent_{settings_};
    ThumbnailService thumbnails_;
    FolderReader reader_;

    QStackedWidget* pages_;
    EmptyPage* empty_;
    VorlaneWidget* sheet_;
    ThumbnailProvider* provider_;
    StatusPanel* status_;

    struct Menus {
        QMenu* file;
        QMenu* recent;
        QMenu* view;
        QAction* open;
        QAction* forget;
        QAction* quit;
        QAction* larger;
        QAction* smaller;
        QAction* usual;
        QAction* fullScreen;
    } menus_{};

    QString folder_;    // the one that is open
    QString failed_;    // the last one asked for, if it could not be read
    int total_ = 0;     // pictures in the folder
    int count_ = 0;     // those of them that are on the list
    int position_ = 0;  // the bar's value
    int waiting_ = 0;   // the most slides that waited for their thumbnail since all had it
    bool opening_ = false;
    QTimer slices_;
    QElapsedTimer sinceShown_;
};

}  // namespace vorlane::editor
