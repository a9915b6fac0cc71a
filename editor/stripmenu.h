// StripMenu: the window's menu for sounds: adds musics and comments to the current slide, records comments, takes
// sounds away, repeats them, sets their volumes and for how long each slide is shown.
#pragma once

#include "editor/commentrecorder.h"
#include "editor/strip.h"

#include <QObject>
#include <QPointer>

class QAction;
class QMenu;
class QMenuBar;

namespace vorlane::editor {

class Navigator;
class StripSounds;
class VolumePanel;

class StripMenu : public QObject {
    Q_OBJECT

public:
    // All outlive this.
    StripMenu(QMenuBar& bar, Strip& strip, StripSounds& sounds, Navigator& navigator);

    void retranslate();
    // To the current slide, or the first one; tells how it went. What is no sound is passed over.
    void addFiles(SoundKind kind, const QStringList& files);
    // The same untold, for the slide of a list index when there is one: gives what is to be said of it.
    QString added(SoundKind kind, const QStringList& files, int listIndex);
    // Ends the recording of a comment, if one runs, and puts it on its slide.
    void endRecording();
    // Where recorded comments come from; at first the system's microphone.
    void setMicrophone(MakeMicrophone make) { recorder_.setMicrophone(std::move(make)); }

public Q_SLOTS:
    // Where a file dialog starts and recorded comments go. What is being recorded is ended, and kept.
    void setFolder(const QString& folder);

Q_SIGNALS:
    void said(const QString& notice);
    // A recording is about to begin.
    void recordAsked();

private:
    QAction* AddAction(const QKeySequence& keys = {});
    QWidget* Window() const;
    int Current() const;
    void Choose(SoundKind kind);
    void Remove(SoundKind kind);
    void AddTo(SoundKind kind, const QStringList& files, int listIndex);
    // left: those for which there was no slide.
    static QString AddedText(SoundKind kind, int count, int left);
    void ChooseExposition();
    void ChooseVolumes();
    void Record(bool on);
    QString Kept(const QString& comment);
    void ShowState();

    Strip& strip_;
    StripSounds& sounds_;
    Navigator& navigator_;
    QMenu* menu_;
    QAction* addMusic_;
    QAction* addComment_;
    QAction* record_;
    QAction* repeatMusic_;
    QAction* repeatComment_;
    QAction* volumes_;
    QAction* removeMusic_;
    QAction* removeComment_;
    QAction* exposition_;
    QAction* show_;
    QPointer<VolumePanel> volumePanel_;
    QString folder_;
    CommentRecorder recorder_{this};
    int recordedKey_ = -1;  // of the slide that the comment is recorded for
};

}  // namespace vorlane::editor
