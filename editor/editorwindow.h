// EditorWindow: the editor's main window. It shows the pictures of a folder or of a saved show on a sheet, and lets the
// user order them, add some, take some off, and save what came of it. The pictures themselves stay as they are.
//
// Nothing of it blocks: a folder is read on a thread and comes onto the sheet in slices, pictures are decoded by the
// thumbnail service.
#pragma once

#include "editor/additions.h"
#include "editor/folderreader.h"
#include "editor/menus.h"
#include "editor/preferences.h"
#include "editor/recents.h"
#include "editor/savedshow.h"
#include "editor/soundtrack.h"
#include "widgets/thumbnailprovider.h"
#include "widgets/thumbnailservice.h"

#include <functional>
#include <optional>
#include <utility>

#include <QElapsedTimer>
#include <QMainWindow>
#include <QTimer>

class QSettings;
class QStackedWidget;

namespace vorlane {
class VorlaneWidget;
}

namespace vorlane::editor {

class EmptyPage;
class Navigator;
class Renamer;
class Show;
class ShowKeeper;
class ShowPlayer;
class SlideDrags;
class SoundButtons;
class StatusPanel;
class Strip;
class StripMenu;
class StripSounds;

class EditorWindow : public QMainWindow {
    Q_OBJECT

public:
    // settings outlives the window.
    explicit EditorWindow(QSettings& settings, ThumbnailOptions thumbnails = {}, QWidget* parent = nullptr);
    ~EditorWindow() override;

    // Reads the folder and shows it. What is shown stays until the folder is open, and for good when it can't be read.
    void openFolder(const QString& folder);
    QString folder() const { return folder_; }
    // The same with the show of a file. False, and all stays, when the file holds none. Pictures that are not there
    // come as broken slides.
    bool openShow(const QString& path);
    // One or the other, by its name.
    void open(const QString& path);
    // The file that the show belongs to; empty when it has none.
    QString showPath() const;
    // Where unsaved work is kept; until this is called, nowhere.
    void setRecoveryFolder(const QString& folder);
    // Asks the user about what a run that broke off left there, if anything.
    void offerRecovery();
    // Reads files and folders and adds their pictures in front of a list index, or at the end for -1.
    void addFiles(const QStringList& paths, int before = -1);
    // How many pictures are on the sheet's list.
    int count() const;
    // Whether all that was asked for is read and all slides show what they should.
    bool isSettled() const;

    // Milliseconds that the window may be busy at a time with adding what is read; with 0 it adds a handful.
    void setSliceTime(int milliseconds) { sliceTime_ = milliseconds; }
    // What opens a picture's file; gives false where nothing does. At first it is the system's usual program.
    using PictureOpener = std::function<bool(const QString& path)>;
    void setPictureOpener(PictureOpener opener) { opener_ = std::move(opener); }
    // What the shows' sounds are played by, from the first show on that is played.
    void setSoundChannels(Soundtrack::MakeChannel makeChannel) { makeChannel_ = std::move(makeChannel); }
    // Plays the show; made by the first play().
    ShowPlayer* player() const { return player_.get(); }

    VorlaneWidget& sheet() const { return *sheet_; }
    Show& slides() const { return *show_; }
    Navigator& navigator() const { return *navigator_; }
    ThumbnailService& thumbnails() { return thumbnails_; }
    StatusPanel& status() const { return *status_; }
    Strip& strip() const { return *strip_; }
    StripSounds& sounds() const { return *sounds_; }
    StripMenu& soundMenu() const { return *soundMenu_; }

public Q_SLOTS:
    void chooseFolder();
    void chooseShow();
    // Whether it is saved then.
    bool save();
    bool saveAs();
    void chooseFiles();
    void removeSelected();
    // Plays the show on the whole screen, from the current slide on or from its first one.
    void play();
    void playFromStart();
    void renameCurrent();
    void selectAll();
    void toggleFullScreen();

Q_SIGNALS:
    void settled();
    // Also of a show's file.
    void folderFailed(const QString& path);

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

    // editorwindow_drags.cpp
    void ConnectDrags();
    void Receive(const QStringList& paths, int before, int on);

    // editorwindow_menus.cpp
    QAction* AddAction(QMenu* menu, const QKeySequence& keys);
    void MakeMenus();
    void MakeFileMenu();
    void MakeEditMenu();
    void MakeViewMenu();
    void MakeSortMenu();
    void NameMenus();
    void NameViewMenu();
    void NameUndo();
    void FillRecentMenu();

    // editorwindow_edit.cpp
    void ConnectShow();
    void ConnectStrip();
    QString SoundOf(int key, bool comment) const;
    void ItemsChanged();
    // notice: what is to be said along with it.
    void Add(const QStringList& paths, int before, const QString& notice);
    void Added(const std::vector<FolderItem>& items, const Lot& lot);
    void TellName(const QString& from, const QString& to);
    void MoveSelected(int lines);
    void SayHeld();
    void Say(const QString& notice);
    void OpenItem(int listIndex);
    bool ShowContextMenu(const QContextMenuEvent& event);

    // editorwindow_arrange.cpp
    void Sort(SortBy by);
    void SetDescending(bool descending);
    void SetSideways(bool sideways);
    void FitRow();
    void ShowArrangement();
    QString SortName() const;

    // editorwindow_folder.cpp
    void ConnectReader();
    struct Folder {
        QString path;
        int total;  // pictures
    };
    void Opened(const QString& folder, int total);
    void ForgetOpening();
    void Begin(const Folder& folder);
    void BeginFolder(const QString& path);
    void Failed(const QString& folder);
    QString FailureText() const;
    void ShowPage();
    void TakeSlice();
    void Complete();
    // What the show names and the disk doesn't hold.
    void TellMissing();
    void ShowSheet();
    void ShowStatus();
    void ShowEmptyTexts();
    void CheckSettled();
    QString ShowName() const;
    void ShowTitle();

    // editorwindow_showfile.cpp
    struct Loading {
        QString path;  // empty: a recovered show without a file
        SavedShow show;
        QString recovered{};  // the file that it was kept in
    };
    void MakeKeeper();
    std::optional<SavedShow> Present() const;
    void Load(SavedShow show, const QString& path);
    void BeginShow();
    bool SaveTo(const QString& path);
    void Leave(const std::function<void()>& goOn);
    void Recover(const QString& file);
    void KeepRecovered();

    // editorwindow_play.cpp
    void MakePlayMenu();
    void NamePlayMenu();
    void PlayFrom(int first);
    void EndPlay();
    void FollowPlaying(qint64 second);

    QSettings& settings_;
    Recents recent_{settings_};
    ThumbnailService thumbnails_;
    FolderReader reader_;
    Additions additions_;

    QStackedWidget* pages_;
    EmptyPage* empty_;
    QWidget* sheetPage_;
    VorlaneWidget* sheet_;
    Show* show_;
    Navigator* navigator_;
    ShowKeeper* keeper_ = nullptr;
    SlideDrags* drags_;
    Renamer* renamer_;
    ThumbnailProvider* provider_;
    Strip* strip_;
    StripSounds* sounds_;
    SoundButtons* buttons_;
    StripMenu* soundMenu_;
    StatusPanel* status_;
    Menus menus_{};
    PictureOpener opener_;
    Soundtrack::MakeChannel makeChannel_;
    std::unique_ptr<ShowPlayer> player_;

    std::optional<Folder> opened_;    // has been opened and comes onto the sheet next
    std::optional<Loading> loading_;  // the show whose pictures are being read and aren't on the sheet yet

    QString folder_;        // the one that is open, or that of the show's file
    QString failed_;        // the last one asked for, if it could not be read
    QString notice_;        // what was done last, for a moment
    int total_ = 0;         // pictures in the folder
    int read_ = 0;          // those of them that have come onto the list
    int missing_ = 0;       // those of these that are not on the disk
    QString recovered_;     // the file of the show that is being recovered
    int waiting_ = 0;       // the most slides that waited for their thumbnail since all had it
    int begun_ = 0;         // how many folders and shows have come onto the sheet
    int deferred_ = 0;      // lots that were added and wait for the show to finish its work
    bool complete_ = true;  // all of the folder that was asked for last is on the list, or none of it will be
    QTimer slices_;
    int sliceTime_ = 8;
    QTimer noticeEnd_;
    QElapsedTimer sinceShown_;
};

}  // namespace vorlane::editor
