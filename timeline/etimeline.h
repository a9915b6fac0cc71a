// eTimeLine: the strip under a contact sheet. It shows, for the slides that the sheet shows, a scale of time, the bars
// of the show's musics and comments, a growing bar while a comment is recorded and a triangle while the show plays.
// Time is whole seconds from the start of the show; each slide lasts ExpositionTime.
//
// One Paint draws all of it anew; nothing is drawn before Show. The time line owns its two collections of sounds and
// follows one sheet, which it asks where a slide stands. It stores no sound: the host fills the collections.
//
// Lengths are pixels. Painting goes on past a step that fails. A navigation that fails raises Error and gives what it
// had. Property accessors fail to their caller.
#pragma once

#include "platform/controlvisitor.h"
#include "platform/failure.h"
#include "platform/propertybag.h"
#include "platform/trelmic6.h"
#include "platform/usercontrol.h"
#include "timeline/bars.h"
#include "timeline/clsmenuctx.h"
#include "timeline/clsson.h"
#include "timeline/timelineevents.h"
#include "timeline/timescale.h"
#include "timeline/tson.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vorlane {

class Vorlane;

// Where the time marks stand.
enum class etlType : int32_t {
    etltFree = 0,         // at whole seconds, as near to each other as their labels let them
    etltFollowDiapo = 1,  // one to a slide
};

enum LectureIndicPosition : int32_t { kIndicBottom = 0, kIndicTop = 1, kIndicBoth = 2 };

class eTimeLine final : public UserControl {
public:
    // One persisted property. How it is read, and set in a new time line, is the time line's own affair.
    class PersistedProperty {
    public:
        using Get = std::function<BagValue(const eTimeLine&)>;

        std::string Key;
        Get Default;  // the value that a missing key stands for, and that is not stored
        Get Value;

    private:
        friend class eTimeLine;
        using ReadFrom = std::function<void(eTimeLine&, const PropertyBag&)>;
        using SetFresh = std::function<void(eTimeLine&)>;

        PersistedProperty(std::string key, Get otherwise, Get value, ReadFrom read, SetFresh initialize);

        ReadFrom read_;
        SetFresh initialize_;
    };
    // All of them, in the order of reading.
    static const std::vector<PersistedProperty>& PersistedProperties();

    // systemFamily: the kind of system that it paints for; an old one has no gradients of its own.
    eTimeLine(const vorlane::Desktop& desktop, const vorlane::Ambient& ambient, UserControl* container = nullptr,
              int32_t systemFamily = Trelmic6::SystemFamily());
    ~eTimeLine() override;

    // --- Life cycle ---
    void InitProperties() override;
    void ReadProperties(const PropertyBag& bag) override;
    void WriteProperties(PropertyBag& bag) const override;
    void Show() override;
    // Lets go of the collections, the sheet, the bars and an open menu. Harmless when called again.
    void Terminate();
    void Accept(ControlVisitor& visitor) const override { visitor.Visit(*this); }

    // --- Sounds and sheet ---
    // nullptr once the time line has ended.
    const std::shared_ptr<ClsSon>& Musiques() const { return musics_.Sounds; }
    void SetMusiques(std::shared_ptr<ClsSon> sounds) { Follow(musics_, kMusic, std::move(sounds)); }
    const std::shared_ptr<ClsSon>& Comments() const { return comments_.Sounds; }
    void SetComments(std::shared_ptr<ClsSon> sounds) { Follow(comments_, kComment, std::move(sounds)); }
    // The sheet to follow, which must outlive its use here; nullptr leaves the one that there is. Repaints nothing.
    void AttachVorlane(Vorlane* sheet);
    // Empties both collections.
    void Clear();

    // --- Painting ---
    void Paint();
    void Refresh() { Paint(); }
    // Fills a rectangle with a gradient, see GradientWay. A failure raises Error and leaves the rectangle as it is.
    void GradientTrace(OLE_COLOR startColor, OLE_COLOR endColor, int32_t direction, bool inverse, float x, float y,
                       float width, float height);
    // Sets the background's gradient and paints, also when nothing changes; reports no change of a property.
    void GradientColor(OLE_COLOR startColor, OLE_COLOR endColor, int32_t& direction);
    // The background's first colour, as painted. Fails with DivisionByZero() on a strip of no size.
    OLE_COLOR GradientColorMedian() const;
    // What a pointer there tells; empty off the bars.
    std::string ToolTipAt(float x, float y) const;
    // Tops of the rows of bars, as the last paint has left them.
    float BarTopMusic() const { return musics_.BarTop; }
    float BarTopComment() const { return comments_.BarTop; }

    // --- Slides ---
    // The place of a slide on the sheet, from 0; -1 when there is none.
    int32_t PositionOf(int32_t diapoKey) const;
    // The second at which a slide starts; fails with ObjectNotSet() without a sheet.
    int32_t StartOf(int32_t diapoKey) const;

    // --- Playback and record indicators ---
    // How far the show, or the recording of a comment, has come: seconds since the start of the slide where it began,
    // which the first call tells. Without that slide nothing begins.
    void Lecture(int32_t nbSeconde, int16_t diapoValue = -1);
    void LectureEnd();
    void Record(int32_t nbSeconde, int16_t diapoValue = -1);
    void RecordEnd();

    // --- Navigation. Quoi: 0 musics, 1 comments, 2 both ---
    // Shows the sounds in a popup, at the pointer where a coordinate is -1; a choice selects the sound's slide.
    void Menu(int32_t quoi, int32_t xPixels = -1, int32_t yPixels = -1);
    // The popup of the right mouse button off the bars, with its commands and all sounds, for hosts that show it by a
    // key. Nothing without a sheet.
    void ContextMenu(int32_t xPixels = -1, int32_t yPixels = -1);
    // Jumps from sound to sound as F2 to F7 do on the sheet, for hosts whose keys go to the strip. Gives whether the
    // key is one of these.
    bool KeyCommand(int16_t keyCode);
    // Does what an item of the menu does, see eMnuTimeLineID.
    void MnuCtx_ItemClic(int32_t mnuItemID);
    // The next sound behind a slide, the last one before it: DiapoKey is -1 when there is none. Of both kinds the
    // comment is preferred. setStart skips sounds that still play on that slide; Durée then tells for how long they do.
    tSon NextSound(int32_t fromDiapoKey, int32_t quoi);
    tSon PreviousSound(int32_t fromDiapoKey, int32_t quoi, bool setStart = false);
    // The sound whose bar of the last paint lies at that place, with Durée the seconds from the bar's start to there.
    // An empty record off the bars.
    tSon GetMusicAt(float diapoX) { return SoundAt(musics_, diapoX, "GetMusicAt"); }
    tSon GetCommentAt(float diapoX) { return SoundAt(comments_, diapoX, "GetCommentAt"); }

    // --- Scale ---
    float DiapoWidth() const { return settings_.DiapoWidth; }
    void SetDiapoWidth(float width) { Change(settings_.DiapoWidth, width, "DiapoWidth"); }
    int16_t ExpositionTime() const { return settings_.ExpositionTime; }
    void SetExpositionTime(int16_t seconds) { Change(settings_.ExpositionTime, seconds, "ExpositionTime"); }
    int32_t StartPoint() const { return settings_.StartPoint; }
    void SetStartPoint(int32_t slide) { Change(settings_.StartPoint, slide, "StartPoint"); }
    int16_t MargeGauche() const { return settings_.MargeGauche; }
    void SetMargeGauche(int16_t margin) { Change(settings_.MargeGauche, margin, "MargeGauche"); }
    etlType Style() const { return settings_.Style; }
    void SetStyle(etlType style) { Change(settings_.Style, style, "Style"); }

    // --- Look ---
    int32_t BorderStyle() const { return settings_.BorderStyle; }
    void SetBorderStyle(int32_t kind);
    OLE_COLOR BorderColor() const { return settings_.BorderColor; }
    void SetBorderColor(OLE_COLOR color) { Change(settings_.BorderColor, color, "BorderColor"); }
    // Pixels of the border.
    uint8_t BorderWidth() const { return borderPixels_; }
    bool Round() const { return settings_.Round; }
    void SetRound(bool round) { Change(settings_.Round, round, "Round"); }
    int16_t RoundBorder() const { return settings_.RoundBorder; }
    void SetRoundBorder(int16_t diameter) { Change(settings_.RoundBorder, diameter, "RoundBorder"); }
    OLE_COLOR ForeColor() const { return settings_.ForeColor; }
    void SetForeColor(OLE_COLOR color) { Change(settings_.ForeColor, color, "ForeColor"); }
    const vorlane::Font& Font() const { return Surface().Font(); }
    void SetFont(const vorlane::Font& font);
    void SetEnabled(bool enabled);
    OLE_COLOR GradientColorStart() const { return settings_.GradientColorStart; }
    void SetGradientColorStart(OLE_COLOR color) { Change(settings_.GradientColorStart, color, "GradientColorStart"); }
    OLE_COLOR GradientColorEnd() const { return settings_.GradientColorEnd; }
    void SetGradientColorEnd(OLE_COLOR color) { Change(settings_.GradientColorEnd, color, "GradientColorEnd"); }
    bool GradientColorInverse() const { return settings_.GradientColorInverse; }
    void SetGradientColorInverse(bool inverse) {
        Change(settings_.GradientColorInverse, inverse, "GradientColorInverse");
    }
    int32_t GradientDirection() const { return settings_.GradientDirection; }
    void SetGradientDirection(int32_t direction) {
        Change(settings_.GradientDirection, direction, "GradientDirection");
    }
    // Where the playback triangle shows, see LectureIndicPosition.
    int32_t LectureIndicPos() const { return settings_.LectureIndicPos; }
    void SetLectureIndicPos(int32_t position) { Change(settings_.LectureIndicPos, position, "LectureIndicPos"); }

    // --- Bars. Those of a colour set alternate with those of the other, slide by slide ---
    bool ShowBarres() const { return settings_.ShowBarres; }
    void SetShowBarres(bool show) { Change(settings_.ShowBarres, show, "ShowBarres"); }
    uint8_t BarreHeight() const { return settings_.BarreHeight; }
    void SetBarreHeight(uint8_t height) { ChangeInHost(settings_.BarreHeight, height, "BarreHeight"); }
    uint8_t BarreMarge() const { return settings_.BarreMarge; }
    void SetBarreMarge(uint8_t margin) { ChangeInHost(settings_.BarreMarge, margin, "BarreMarge"); }
    // 0 puts the musics on top, anything else the comments.
    int32_t BarreOnTop() const { return settings_.BarreOnTop; }
    void SetBarreOnTop(int32_t row) { ChangeInHost(settings_.BarreOnTop, row, "BarreOnTop"); }
    OLE_COLOR BorderMusicColor() const { return settings_.Music1.Border; }
    void SetBorderMusicColor(OLE_COLOR color);
    OLE_COLOR BorderMusicColor2() const { return settings_.Music2.Border; }
    void SetBorderMusicColor2(OLE_COLOR color);
    OLE_COLOR BorderCommentColor() const { return settings_.Comment1.Border; }
    void SetBorderCommentColor(OLE_COLOR color);
    OLE_COLOR BorderCommentColor2() const { return settings_.Comment2.Border; }
    void SetBorderCommentColor2(OLE_COLOR color);
    OLE_COLOR GradientMusicColorStart() const { return settings_.Music1.Start; }
    void SetGradientMusicColorStart(OLE_COLOR color);
    OLE_COLOR GradientMusicColorEnd() const { return settings_.Music1.End; }
    void SetGradientMusicColorEnd(OLE_COLOR color);
    OLE_COLOR GradientMusicColorStart2() const { return settings_.Music2.Start; }
    void SetGradientMusicColorStart2(OLE_COLOR color);
    OLE_COLOR GradientMusicColorEnd2() const { return settings_.Music2.End; }
    void SetGradientMusicColorEnd2(OLE_COLOR color);
    OLE_COLOR GradientCommentColorStart() const { return settings_.Comment1.Start; }
    void SetGradientCommentColorStart(OLE_COLOR color);
    OLE_COLOR GradientCommentColorEnd() const { return settings_.Comment1.End; }
    void SetGradientCommentColorEnd(OLE_COLOR color);
    OLE_COLOR GradientCommentColorStart2() const { return settings_.Comment2.Start; }
    void SetGradientCommentColorStart2(OLE_COLOR color);
    OLE_COLOR GradientCommentColorEnd2() const { return settings_.Comment2.End; }
    void SetGradientCommentColorEnd2(OLE_COLOR color);
    // Stored for the host; the record bar keeps its own colours.
    OLE_COLOR RecordGradientColorStart() const { return settings_.Record.Start; }
    void SetRecordGradientColorStart(OLE_COLOR color);
    OLE_COLOR RecordGradientColorEnd() const { return settings_.Record.End; }
    void SetRecordGradientColorEnd(OLE_COLOR color);
    OLE_COLOR RecordBorderColor() const { return settings_.Record.Border; }
    void SetRecordBorderColor(OLE_COLOR color);

    // --- State ---
    // Whether the display follows each change of the collections. False at the start of each run; setting it to true
    // paints.
    bool Redraw() const { return redraw_; }
    void SetRedraw(bool redraw);
    int32_t hDC() const { return Hwnd(); }
    // The bars of the last paint that drew them.
    const BarList& MusicBars() const { return musics_.Bars; }
    const BarList& CommentBars() const { return comments_.Bars; }

    TimeLineEvents Events;

private:
    struct BarColors {
        OLE_COLOR Start = 0;
        OLE_COLOR End = 0;
        OLE_COLOR Border = 0;
    };
    // The persisted properties that the surface does not keep.
    struct Settings {
        uint8_t BarreMarge = 0;
        uint8_t BarreHeight = 0;
        int32_t BarreOnTop = 0;
        int32_t BorderStyle = 0;
        OLE_COLOR BorderColor = 0;
        BarColors Music1;
        BarColors Music2;
        BarColors Comment1;
        BarColors Comment2;
        BarColors Record;
        OLE_COLOR ForeColor = 0;
        OLE_COLOR GradientColorStart = 0;
        OLE_COLOR GradientColorEnd = 0;
        bool GradientColorInverse = false;
        int32_t GradientDirection = 0;
        bool Round = false;
        int16_t RoundBorder = 0;
        int16_t ExpositionTime = 0;
        int32_t StartPoint = 0;
        float DiapoWidth = 0;
        etlType Style = etlType::etltFree;
        int16_t MargeGauche = 0;
        bool ShowBarres = false;
        int32_t LectureIndicPos = 0;
    };
    struct LifeCycle {
        bool OldSystem = false;     // the system has no gradients
        bool ShownOnce = false;     // the control has come to the screen
        bool BusyPainting = false;  // a paint is running
    };
    // The sounds of one kind, and the row that shows them.
    struct Row {
        std::shared_ptr<ClsSon> Sounds;
        std::vector<ScopedConnection> Heard;
        BarList Bars;
        float BarTop = 0;
    };
    // What a paint goes by.
    struct KnownRow {
        std::shared_ptr<const SonCollection> Sounds;
        std::shared_ptr<const SoundPlaces> Places;  // nullptr where slides have to be asked for one by one
        size_t Count = 0;
    };
    struct Indicators {
        bool LectureActive = false;
        bool RecordActive = false;
        int16_t IndicDiapo = 0;    // slide where the run began
        int32_t IndicSeconds = 0;  // seconds since the start of that slide
    };
    struct Link {
        Vorlane* Sheet = nullptr;
        std::vector<ScopedConnection> Heard;
    };
    struct OpenMenu {
        std::shared_ptr<ClsMenuCtx> MnuCtx;  // while it is open
        std::vector<ScopedConnection> Heard;
    };
    // What a search has found of each kind.
    struct Found {
        tSon Music;
        tSon Comment;
        tSon Choice(int32_t quoi) const;
    };
    // What alternates the colours of a row while it is drawn.
    struct Alternation {
        int32_t LastSlide = 0;
        int Set = 0;
    };

    // persistence.cpp
    static std::vector<PersistedProperty> MakePersistedProperties();

    // properties.cpp
    // The bodies of the setters: a value that is there already does nothing.
    template <class T>
    void Change(T& field, T value, std::string_view key) {
        if (field == value) return;
        field = value;
        PropertyChanged(key);
        Paint();
    }
    // The same for what shows in a host only.
    template <class T>
    void ChangeInHost(T& field, T value, std::string_view key) {
        if (field == value) return;
        field = value;
        if (Ambient().UserMode) Paint();
        PropertyChanged(key);
    }

    // etimeline.cpp
    void Resized() override { Paint(); }
    void Report(const Failure& failure, const std::string& text) const;

    // paint.cpp
    void PaintAll();
    Strip TheStrip() const;
    uint8_t DrawBorder(bool measureOnly);
    void PaintBackground();
    void ShapeWindow();
    TimeScale MeasureScale() const;
    void DrawMarks(TimeScale& scale);
    double LabelSeconds(float pixelsPerSecond) const;
    void DrawMarkLines(const std::vector<TimeMark>& marks);

    // gradientpainter.cpp
    void TraceLines(OLE_COLOR from, Rgb a, Rgb b, int32_t direction, float right, float bottom);

    // soundbars.cpp
    void PaintBars(const TimeScale& scale);
    void BuildBars(const TimeScale& scale);
    static KnownRow KnownOf(const Row& row);
    bool PlaceThoseInSight(Row& row, const KnownRow& known, const TimeScale& scale);
    void PlaceSound(Row& row, const KnownRow& known, size_t i, const TimeScale& scale, bool& passed);
    void AddBar(BarList& list, const tSon& son, int32_t start, const TimeScale& scale);
    void ExtendRepetitions(BarList& list);
    void SetRowTops();
    void DrawBar(const Row& row, size_t i, Alternation& colors, const BarColors& set0, const BarColors& set1);
    std::string ToolTipOf(const Row& row, float x, float y) const;

    // indicators.cpp
    void CountSeconds(int32_t nbSeconde);
    void DrawRecordBar(const TimeScale& scale);
    void DrawIndicators(const TimeScale& scale);
    void DrawIndicator(bool top, int32_t position);

    // navigation.cpp
    void ConnectMenu();
    void ShowMenu(bool musics, bool comments, bool onlyFiles, int32_t x, int32_t y);
    void MnuCtx_GetSecond(int32_t diapoKey, int32_t& secStart, std::string& nomImage);
    void RunMenuItem(int32_t mnuItemID);
    void SelectSlide(int32_t diapoKey);
    template <class Judge>
    void Search(int32_t fromDiapoKey, int32_t quoi, bool forward, const Judge& judge, Found& found) const;
    tSon SoundAt(const Row& row, float diapoX, std::string_view operation);

    // sheetlink.cpp
    void Follow(Row& row, SonType type, std::shared_ptr<ClsSon> sounds);
    Vorlane& Sheet() const;  // fails with ObjectNotSet()
    // Names what PositionOf goes by, see ListBox::DataState.
    uint64_t PositionsState() const;
    template <class Act>
    void ForEachCollection(Act&& act);  // as far as they are there
    void SortSounds();

    Trelmic6 utilities_;
    Settings settings_;
    LifeCycle life_;
    OLE_COLOR defaultColorStart_;  // of the background
    OLE_COLOR defaultColorEnd_;
    uint8_t borderPixels_ = 0;
    int32_t medianMode_ = 0;
    bool redraw_ = false;
    Row musics_;
    Row comments_;
    Indicators indicators_;
    Link link_;
    OpenMenu menu_;
    std::shared_ptr<const bool> alive_ = std::make_shared<const bool>(true);  // held by nobody else
    PendingError pending_;
};

}  // namespace vorlane
