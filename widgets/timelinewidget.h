// TimeLineWidget: the time line under a sheet (eTimeLine) as a widget. It holds no rule of the time line's: it hands
// properties, methods and events over in Qt's types.
//
// Names are the time line's own, events with "On" in front. Lengths are pixels. No accessor throws: what the time line
// refuses leaves it as it was and raises OnError.
//
// The keys of the sheet that jump from sound to sound, F2 to F7, do so on the strip as well while it has the keyboard;
// the key for context menus opens its popup.
#pragma once

#include "platform/failure.h"
#include "platform/qt/controlhost.h"
#include "widgets/enums.h"
#include "widgets/timelinesound.h"
#include "widgets/timelinesounds.h"

#include <memory>
#include <vector>

#include <QByteArray>
#include <QColor>
#include <QFont>
#include <QString>

namespace vorlane {

class ClsSon;
class eTimeLine;
class VorlaneWidget;
struct VorlaneEvents;

class TimeLineWidget : public ControlHost {
    Q_OBJECT
    Q_PROPERTY(int BarreMarge READ BarreMarge WRITE SetBarreMarge)
    Q_PROPERTY(int BarreHeight READ BarreHeight WRITE SetBarreHeight)
    Q_PROPERTY(int BarreOnTop READ BarreOnTop WRITE SetBarreOnTop)
    Q_PROPERTY(int BorderStyle READ BorderStyle WRITE SetBorderStyle)
    Q_PROPERTY(QColor BorderColor READ BorderColor WRITE SetBorderColor)
    Q_PROPERTY(QColor BorderMusicColor READ BorderMusicColor WRITE SetBorderMusicColor)
    Q_PROPERTY(QColor BorderMusicColor2 READ BorderMusicColor2 WRITE SetBorderMusicColor2)
    Q_PROPERTY(QColor BorderCommentColor READ BorderCommentColor WRITE SetBorderCommentColor)
    Q_PROPERTY(QColor BorderCommentColor2 READ BorderCommentColor2 WRITE SetBorderCommentColor2)
    Q_PROPERTY(bool Enabled READ Enabled WRITE SetEnabled)
    Q_PROPERTY(QFont Font READ Font WRITE SetFont)
    Q_PROPERTY(QColor ForeColor READ ForeColor WRITE SetForeColor)
    Q_PROPERTY(QColor GradientColorStart READ GradientColorStart WRITE SetGradientColorStart)
    Q_PROPERTY(QColor GradientColorEnd READ GradientColorEnd WRITE SetGradientColorEnd)
    Q_PROPERTY(bool GradientColorInverse READ GradientColorInverse WRITE SetGradientColorInverse)
    Q_PROPERTY(int GradientDirection READ GradientDirection WRITE SetGradientDirection)
    Q_PROPERTY(QColor GradientMusicColorStart READ GradientMusicColorStart WRITE SetGradientMusicColorStart)
    Q_PROPERTY(QColor GradientMusicColorEnd READ GradientMusicColorEnd WRITE SetGradientMusicColorEnd)
    Q_PROPERTY(QColor GradientCommentColorStart READ GradientCommentColorStart WRITE SetGradientCommentColorStart)
    Q_PROPERTY(QColor GradientCommentColorEnd READ GradientCommentColorEnd WRITE SetGradientCommentColorEnd)
    Q_PROPERTY(QColor GradientMusicColorStart2 READ GradientMusicColorStart2 WRITE SetGradientMusicColorStart2)
    Q_PROPERTY(QColor GradientMusicColorEnd2 READ GradientMusicColorEnd2 WRITE SetGradientMusicColorEnd2)
    Q_PROPERTY(QColor GradientCommentColorStart2 READ GradientCommentColorStart2 WRITE SetGradientCommentColorStart2)
    Q_PROPERTY(QColor GradientCommentColorEnd2 READ GradientCommentColorEnd2 WRITE SetGradientCommentColorEnd2)
    Q_PROPERTY(QColor RecordGradientColorStart READ RecordGradientColorStart WRITE SetRecordGradientColorStart)
    Q_PROPERTY(QColor RecordGradientColorEnd READ RecordGradientColorEnd WRITE SetRecordGradientColorEnd)
    Q_PROPERTY(QColor RecordBorderColor READ RecordBorderColor WRITE SetRecordBorderColor)
    Q_PROPERTY(bool Round READ Round WRITE SetRound)
    Q_PROPERTY(int RoundBorder READ RoundBorder WRITE SetRoundBorder)
    Q_PROPERTY(int ExpositionTime READ ExpositionTime WRITE SetExpositionTime)
    Q_PROPERTY(int StartPoint READ StartPoint WRITE SetStartPoint)
    Q_PROPERTY(double DiapoWidth READ DiapoWidth WRITE SetDiapoWidth)
    Q_PROPERTY(vorlane::ui::TimeMarks Style READ Style WRITE SetStyle)
    Q_PROPERTY(int MargeGauche READ MargeGauche WRITE SetMargeGauche)
    Q_PROPERTY(bool ShowBarres READ ShowBarres WRITE SetShowBarres)
    Q_PROPERTY(int LectureIndicPos READ LectureIndicPos WRITE SetLectureIndicPos)

public:
    // On the program's shared desktop.
    explicit TimeLineWidget(QWidget* parent = nullptr);
    explicit TimeLineWidget(QtDesktop& desktop, QWidget* parent = nullptr);
    ~TimeLineWidget() override;

    // The time line itself.
    eTimeLine& timeline() const { return line_; }

    QSize sizeHint() const override;

    // --- Persisted properties ---
    int BarreMarge() const;
    void SetBarreMarge(int value);
    int BarreHeight() const;
    void SetBarreHeight(int value);
    int BarreOnTop() const;
    void SetBarreOnTop(int value);
    int BorderStyle() const;
    void SetBorderStyle(int value);
    QColor BorderColor() const;
    void SetBorderColor(const QColor& color);
    QColor BorderMusicColor() const;
    void SetBorderMusicColor(const QColor& color);
    QColor BorderMusicColor2() const;
    void SetBorderMusicColor2(const QColor& color);
    QColor BorderCommentColor() const;
    void SetBorderCommentColor(const QColor& color);
    QColor BorderCommentColor2() const;
    void SetBorderCommentColor2(const QColor& color);
    bool Enabled() const;
    void SetEnabled(bool on);
    QFont Font() const;
    void SetFont(const QFont& font);
    QColor ForeColor() const;
    void SetForeColor(const QColor& color);
    QColor GradientColorStart() const;
    void SetGradientColorStart(const QColor& color);
    QColor GradientColorEnd() const;
    void SetGradientColorEnd(const QColor& color);
    bool GradientColorInverse() const;
    void SetGradientColorInverse(bool on);
    int GradientDirection() const;
    void SetGradientDirection(int value);
    QColor GradientMusicColorStart() const;
    void SetGradientMusicColorStart(const QColor& color);
    QColor GradientMusicColorEnd() const;
    void SetGradientMusicColorEnd(const QColor& color);
    QColor GradientCommentColorStart() const;
    void SetGradientCommentColorStart(const QColor& color);
    QColor GradientCommentColorEnd() const;
    void SetGradientCommentColorEnd(const QColor& color);
    QColor GradientMusicColorStart2() const;
    void SetGradientMusicColorStart2(const QColor& color);
    QColor GradientMusicColorEnd2() const;
    void SetGradientMusicColorEnd2(const QColor& color);
    QColor GradientCommentColorStart2() const;
    void SetGradientCommentColorStart2(const QColor& color);
    QColor GradientCommentColorEnd2() const;
    void SetGradientCommentColorEnd2(const QColor& color);
    QColor RecordGradientColorStart() const;
    void SetRecordGradientColorStart(const QColor& color);
    QColor RecordGradientColorEnd() const;
    void SetRecordGradientColorEnd(const QColor& color);
    QColor RecordBorderColor() const;
    void SetRecordBorderColor(const QColor& color);
    bool Round() const;
    void SetRound(bool on);
    int RoundBorder() const;
    void SetRoundBorder(int value);
    int ExpositionTime() const;
    void SetExpositionTime(int value);
    int StartPoint() const;
    void SetStartPoint(int value);
    double DiapoWidth() const;
    void SetDiapoWidth(double value);
    ui::TimeMarks Style() const;
    void SetStyle(ui::TimeMarks style);
    int MargeGauche() const;
    void SetMargeGauche(int value);
    bool ShowBarres() const;
    void SetShowBarres(bool on);
    int LectureIndicPos() const;
    void SetLectureIndicPos(int value);

    // The persisted properties as a text (UTF-8, JSON), without those that have their defaults; and back. Whether the
    // text could be read: otherwise nothing changes and OnError is raised. What it leaves out gets its default.
    QByteArray SaveProperties() const;
    bool RestoreProperties(const QByteArray& text);

    // --- Sounds and sheet ---
    TimeLineSounds Musiques() const;
    void SetMusiques(std::shared_ptr<ClsSon> sounds);
    TimeLineSounds Comments() const;
    void SetComments(std::shared_ptr<ClsSon> sounds);
    // The sheet to follow until it ends, or nullptr for none. Repaints nothing.
    void AttachVorlane(VorlaneWidget* sheet);
    // Whether the display follows each change of the sounds; false at the start. Setting it to true repaints.
    bool Redraw() const;
    void SetRedraw(bool on);

    // The length of a sound file in whole seconds, 0 when it can't be told.
    int SoundSeconds(const QString& file) const;
    // "m:ss", or "h:mm:ss" from an hour on; with units "2 h 05 min 09 s", without those in front that are zero.
    static QString SecondsToText(int seconds, bool withUnits);

    // --- Painting ---
    // Fills a part of the strip with a gradient, up to the next paint.
    void GradientTrace(const QColor& startColor, const QColor& endColor, int direction, bool inverse, double x,
                       double y, double width, double height);
    // Sets the background's gradient and paints, also when nothing changes; reports no change of a property.
    void GradientColor(const QColor& startColor, const QColor& endColor, int direction);
    // The background's first colour, as painted; invalid on a strip of no size.
    QColor GradientColorMedian() const;
    int BorderWidth() const;
    QString ToolTipAt(double x, double y) const;

    // --- Navigation. quoi: 0 musics, 1 comments, 2 both ---
    // The next sound behind a slide, the last one before it: DiapoKey is -1 when there is none.
    TimeLineSound NextSound(int fromDiapoKey, int quoi);
    TimeLineSound PreviousSound(int fromDiapoKey, int quoi, bool setStart = false);
    // The sound whose bar lies at that place, with Duree the seconds from the bar's start to there. An empty one off
    // the bars.
    TimeLineSound GetMusicAt(double diapoX);
    TimeLineSound GetCommentAt(double diapoX);

public Q_SLOTS:
    // Takes all sounds away.
    void Clear();
    void Refresh();
    // How far the show, or a recording, has come: seconds since the start of the slide where it began, which the first
    // call tells. That slide is one up to 32,767, otherwise OnError is raised and nothing begins; the seconds may lead
    // to any slide.
    void Lecture(int nbSeconde, int diapoValue = -1);
    void LectureEnd();
    void Record(int nbSeconde, int diapoValue = -1);
    void RecordEnd();
    // Shows the sounds in a popup, at the pointer where a coordinate is -1; a choice selects the sound's slide.
    void Menu(int quoi, int xPixels = -1, int yPixels = -1);
    // Does what an item of the popup does.
    void MnuCtx_ItemClic(int mnuItemID);

Q_SIGNALS:
    void PropertyChanged(const QString& key);

    void OnClick();
    void OnDblClick();
    // typeSound: 0 a music, 1 a comment; diapoIndex: of the slide that has lost it.
    void OnRemovedSound(int typeSound, int key, int diapoIndex);
    void OnError(int number, const QString& description, const QString& source, int lastDllError,
                 const QString& valeur) const;

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    // Runs an operation of the time line; its failure raises OnError.
    template <class Operation>
    void Do(const char* name, Operation&& operation) {
        Trap(pending_, operation, [&](const Failure& failure) { Report(failure, name); });
    }
    template <class Operation, class Result>
    Result Ask(const char* name, Result otherwise, Operation&& operation) const {
        return Trap(
            pending_, operation, [&](const Failure& failure) { Report(failure, name); }, otherwise);
    }
    void Report(const Failure& failure, const char* name) const;
    // Assistive programs are told when the display follows a change of these sounds.
    void TellChangesOf(ClsSon* sounds, ScopedConnection& heard);
    // They are told when slides have other places, and the sounds other times.
    void TellChangesOf(VorlaneEvents& events);

    eTimeLine& line_;
    mutable PendingError pending_;
    QMetaObject::Connection sheetEnds_;
    std::vector<ScopedConnection> sheetHeard_;
    ScopedConnection musicsHeard_;
    ScopedConnection commentsHeard_;
};

}  // namespace vorlane
