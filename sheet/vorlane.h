// Vorlane: the contact sheet, a list of picture files shown as a grid of slides. The list may be far longer than the
// grid: the sheet owns a small pool of slides, as many as the grid has cells with one row (or column) more than fits,
// and scrolling moves their looks and binds them anew. A slide's Value is the list index that it shows, and the only
// link between the two. The list is the truth for selection and keys; the host may bind a list of its own.
//
// Lengths are pixels; events to the host are in the container's scale. Adding items shows nothing: StartLecture puts
// them on slides, in one synchronous pass that calls the host at each slide. Whatever the host's handlers do to the
// sheet meanwhile takes effect at once; a pass that finds its grid, its start or its slides changed stops.
//
// An operation that fails raises Error and gives 0, false or, where it gives an index, -1. Property accessors and
// Clear fail to their caller.
#pragma once

#include "interaction/droprow.h"
#include "platform/controlarray.h"
#include "platform/draggedfile.h"
#include "platform/failure.h"
#include "platform/filelistbox.h"
#include "platform/imagelist.h"
#include "platform/memorylistbox.h"
#include "platform/numbers.h"
#include "platform/ombrel.h"
#include "platform/propertybag.h"
#include "platform/scrollbarplus.h"
#include "platform/shape.h"
#include "platform/subclass.h"
#include "platform/textbox.h"
#include "platform/timer.h"
#include "sheet/clsdiapo.h"
#include "sheet/events.h"
#include "sheet/grid.h"
#include "sheet/itemtext.h"
#include "sheet/log.h"
#include "sheet/random.h"
#include "sheet/state.h"
#include "sheet/types.h"
#include "slide/ediapolight.h"
#include "windows/clstooltip.h"
#include "windows/waitplace.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vorlane {

enum class BandSide : uint8_t;

namespace sheet {
struct SlideMember;
}  // namespace sheet

class MsgBoxObject;
class FrmScroll;

class Vorlane final : public UserControl, public ISubclass {
public:
    // One persisted property: how it is read and written.
    struct PersistedProperty {
        std::string Key;
        // The value that a missing key stands for, and that is not stored.
        std::function<BagValue(const Vorlane&)> Default;
        std::function<BagValue(const Vorlane&)> Value;
        std::function<void(Vorlane&, const PropertyBag&)> Read;
    };
    // All of them, in the order of reading.
    static const std::vector<PersistedProperty>& PersistedProperties();

    Vorlane(const vorlane::Desktop& desktop, const vorlane::Ambient& ambient, UserControl* container = nullptr);
    ~Vorlane() override;

    // --- Life cycle ---
    void InitProperties() override;
    void ReadProperties(const PropertyBag& bag) override;
    void WriteProperties(PropertyBag& bag) const override;
    // What WriteProperties stores, with the colours of an unselected slide 0 also while it shows a selection.
    void WriteDesign(PropertyBag& bag) const;
    void Show() override;
    // Ends the sheet's work: no window messages, no list, no timers. Harmless when called again.
    void Terminate();
    void Accept(ControlVisitor& visitor) const override { visitor.Visit(*this); }
    // Turns the bar by whole notches of one row each.
    bool Wheel(double notches) override;

    // What the sheet's window tells of its size and place, by which the wait window follows it.
    int32_t MsgResponse() const override;
    void SetMsgResponse(int32_t) override {}
    int32_t WindowProc(vorlane::Hwnd hWnd, int32_t iMsg, int32_t wParam, int32_t lParam) override;

    // --- Children, front to back ---
    TextBox Txt{this};              // renames in place
    OmbrelGradient ImgDrag{this};   // the insertion mark of a drag
    OmbrelProgressBar Jauge{this};  // how far a fill is
    ScrollbarPlus VScroll{this};    // the one scroll bar, at the right or at the bottom
    Shape SelRect{this};            // the rubber band
    MemoryListBox LstInterne;       // the sheet's own list
    FileListBox FileInterne;        // reads a folder for the sheet's own list
    FileListBox TmpFile;            // reads a dropped folder
    ImageList ImgLst;               // what stands for a file: substitute, sound, video, document, other
    ImageList ImgLstBtPlay;         // buttons: play, stop, play music, play comment, show text, sound missing
    Timer TimerSon;                 // polls the sounds
    Timer TimerDrag;                // moves a drag on
    Timer TimerResize;              // the layout that a resize has put off
    Timer TimerUnload;              // unloads surplus slides
    ClsDiapo Diapos;                // the slides by index, for hosts; Diapo, the last member, holds them

    // --- Items ---
    // Adds a file, at the end or in front of list index insertBefore. Key -1 becomes the item's index. Gives the index
    // of the new item; 0 when nothing was added.
    int32_t Add(const std::string& imageName, const std::string& multipleDataSort, int32_t key = -1,
                int32_t insertBefore = -1);
    // Takes the item that slide index shows out of the list; the slides behind it close up. The last slide then takes
    // the item behind the next one.
    void Remove(int16_t index);
    void RemoveAllSelected();
    // Unloads the slides and empties the sheet's own list; a list of the host's keeps its items, but not its selection.
    // Yields once.
    void Clear();
    // Clear and StartLecture: shows a host's list anew, and leaves an empty sheet otherwise.
    void Refresh();
    // Binds a list: newList, which must outlive its use here, or the sheet's own one that mode names. A path or a
    // pattern that is not empty is set; without stdSortArgs (a sum of SortArgsType) the last ones stay.
    void InitListe(ListeModeType mode, ListControl* newList = nullptr, const std::string& newPath = {},
                   const std::string& newPattern = {}, std::optional<int32_t> stdSortArgs = {});
    // List index of the item with that key, -1 for none.
    int32_t GetListIndexFromItemData(int32_t key);
    // Index of the slide that shows the item with that key, -1 for none.
    int16_t GetIndexFromKey(int32_t key) const;
    // Key and file of the item at a list index; 0 and "" unless the list is a ListBox.
    int32_t Key(int32_t listIndex) const;
    std::string ImageFullPath(int32_t listIndex) const;

    // --- Display ---
    // Fills the slides from the item of that key, without a key from the first item of that file name, else from the
    // top. Gives the index of the slide that shows the wanted item, 0 when started from the top.
    int16_t StartLecture(const std::string& startImageName = {}, int32_t diapoKey = -1);
    // The slide whose cell lies under a point, by equal parts of the visible size. Turns the point into that slide's
    // coordinates; rightPart tells its half where the sheet shows slides.
    int16_t GetDiapoFromCol(float& x, float& y, bool& rightPart);
    // Gives all slides (dimAll) of a sheet that shows some another size, in pixels; otherwise only slide 0.
    void DiapoSizeChange(bool dimAll, int16_t newWidth, int16_t newHeight);
    // Sorts the list on a criterion of its sort data, from 1; 0 stands for the last one. The selected item stays on its
    // slide as far as the list's ends allow.
    void Sort(uint8_t argIndice = 0);
    // A reduced copy of picture, as slide 0 makes it.
    std::optional<vorlane::Picture> Thumb(const vorlane::Picture& picture, int16_t resolution = -1) const {
        return First().Thumb(picture, resolution);
    }

    // --- Selection ---
    // The list holds the selection of all items; the slides show it.
    void SelectAll();
    void SelectInvert();
    // Leaves no item selected, but for that of the excepted slide (-1: none), and no slide current.
    void SelectedClear(int16_t exceptedIndex = -1);
    int32_t CountSelected() const;
    // List indices of the selected items, ascending.
    std::vector<int32_t> SelectedTableau() const;
    // The first slide on the ground of BackColorCurrent, which is the mark of the current slide; -1 for none. Setting
    // it leaves nothing selected and plays a click on the slide; an index without a slide does nothing at all.
    int16_t CurrentDiapo() const;
    void SetCurrentDiapo(int16_t index);
    // Selects the slide and its item and makes it current, or leaves none current.
    bool Selected(int16_t index) const { return Diapo.Item(index)->Selected(); }
    void SetSelected(int16_t index, bool selected);

    // --- Drags ---
    // Ends what a drag shows on the sheet, and leaves nothing selected.
    void OleResetDrag();
    // How many files data brings: those that are there, and those of the folders. nullptr brings none.
    int32_t CountObject(const DataObject* data);
    // During a drag over the sheet, and in OLEBeforeDropStart: the list index in front of which a drop puts items, the
    // number of items for the end. A sort puts them where they belong. What a handler of that event scrolls or changes
    // moves the place of that drop no more.
    int32_t DropPlace() const;

    // --- Sounds ---
    // Shows the sound button of a slide, 0 music or 1 comment, as playing or stopped. Nothing happens to a button that
    // is out of sight.
    void BtState(int16_t index, int32_t typeBt, bool modePlayed);
    // Stops the music (0), the comment (1) or both (-1) and restores their buttons.
    void StopSound(int32_t only = -1);

    // --- Rename in place ---
    // Opens the box over a slide's name, unless BeforeEdit refuses. Only items of a ListBox are renamed.
    void StartEdit(int16_t index);
    // Closes the box and renames the file, its item and its slide, or leaves all as it was when cancel is set. A name
    // that is refused is told to the user, by msgBox if one is given, and the box stays; cancel then is what the
    // handlers of RenameError have left in it. Nothing happens while no box is open.
    void EndEdit(bool& cancel, MsgBoxObject* msgBox = nullptr);
    void EndEdit();
    // Gives an item of a ListBox and its slide (-1: the one that shows it) another file. Touches no file. False when it
    // failed; then both are as they were.
    bool RenameDiapo(int32_t listIndex, const std::string& oldName, const std::string& newName,
                     int16_t diapoIndex = -1);

    // --- Wait window ---
    // Shows it over the sheet without its bar, at a place of that rectangle.
    void WaitShow(const std::string& newCaption, WaitPlace fromWhere, bool withoutEffect = false);
    // The text of the open window, at once.
    void SetWaitCaption(const std::string& caption);
    void WaitClose(bool withoutEffect = false);
    bool IsWaitOpen() const { return window_.WaitOpen; }

    // --- State ---
    int16_t Count() const;  // items; fails with Overflow() beyond 16 bits
    int16_t CountDiapo() const { return grid::PoolSize(grid_.CountDiapoX, grid_.CountDiapoY); }
    int16_t CountDiapoX() const { return grid_.CountDiapoX; }
    int16_t CountDiapoY() const { return grid_.CountDiapoY; }
    int16_t CountAffiché() const;  // loaded slides
    int32_t hDC() const { return Hwnd(); }
    ListControl* Liste() const { return items_.Liste; }  // nullptr once the sheet has ended

    // --- Properties of the sheet ---
    const std::string& AliasMusic() const { return sound_.Music.Alias; }
    void SetAliasMusic(const std::string& alias) { sound_.Music.Alias = alias; }
    const std::string& AliasComment() const { return sound_.Comment.Alias; }
    void SetAliasComment(const std::string& alias) { sound_.Comment.Alias = alias; }
    OLE_COLOR BackColor() const { return Surface().BackColor(); }
    void SetBackColor(OLE_COLOR color);
    void SetBorderStyle(int32_t style);
    void SetEnabled(bool enabled);  // of the control and of its slides
    const std::string& CaptionWait() const { return captionWait_; }
    void SetCaptionWait(const std::string& caption) { Store(captionWait_, caption, "CaptionWait"); }
    // Path and Pattern do not read their folder while this is set.
    void SetFromInit(bool fromInit) { items_.FromInit = fromInit; }
    // Whether a folder is read into the sheet's own list.
    bool ListAutoFill() const { return items_.ListAutoFill; }
    void SetListAutoFill(bool fill) { Store(items_.ListAutoFill, fill, "ListAutoFill"); }
    const std::string& Path() const { return items_.Path; }
    void SetPath(const std::string& path);
    const std::string& Pattern() const { return items_.Pattern; }
    void SetPattern(const std::string& pattern);
    // The margin around the grid, the least gap between slides, and whether gaps spread over the free room. All three
    // take effect at the next resize.
    int16_t Marges() const { return grid_.Marges; }
    void SetMarges(int16_t margin) { Store(grid_.Marges, margin, "Marges"); }
    int16_t MargeDiapoMin() const { return grid_.MargeDiapoMin; }
    void SetMargeDiapoMin(int16_t gap) { Store(grid_.MargeDiapoMin, gap, "MargeDiapoMin"); }
    bool MargeDiapoAutoAdjust() const { return grid_.MargeDiapoAutoAdjust; }
    void SetMargeDiapoAutoAdjust(bool adjust) { Store(grid_.MargeDiapoAutoAdjust, adjust, "MargeDiapoAutoAdjust"); }
    // Size of the slides, with the gap to the next one when asked for. Setting the width sets the height to 0.76 of it.
    int16_t DiapoWidth(bool withInterval = false) const;
    void SetDiapoWidth(int16_t width);
    int16_t DiapoHeight(bool withInterval = false) const;
    void SetDiapoHeight(int16_t height);
    ScrollDirectionType ScrollDirection() const { return bar_.ScrollDirection; }
    void SetScrollDirection(ScrollDirectionType direction);
    // Place, width and ground of the window that follows the thumb.
    ScrollWindowPosType ScrollWindowPos() const { return bar_.ScrollWindowPos; }
    void SetScrollWindowPos(ScrollWindowPosType place) { Store(bar_.ScrollWindowPos, place, "ScrollWindowPos"); }
    int16_t ScrollWindowWidth() const { return bar_.ScrollWindowWidth; }
    void SetScrollWindowWidth(int16_t width) { Store(bar_.ScrollWindowWidth, width, "ScrollWindowWidth"); }
    OLE_COLOR ScrollWindowBackColor() const { return bar_.ScrollWindowBackColor; }
    void SetScrollWindowBackColor(OLE_COLOR color) {
        Store(bar_.ScrollWindowBackColor, color, "ScrollWindowBackColor");
    }
    bool SelectionMultiple() const { return selection_.SelectionMultiple; }
    void SetSelectionMultiple(bool multiple) { Store(selection_.SelectionMultiple, multiple, "SelectionMultiple"); }
    // The ground of the last selected slide.
    OLE_COLOR BackColorCurrent() const { return selection_.BackColorCurrent; }
    void SetBackColorCurrent(OLE_COLOR color) { Store(selection_.BackColorCurrent, color, "BackColorCurrent"); }
    // Whether a fill shows its gauge, and whether that slides in and out.
    bool ShowJauge() const { return gauge_.ShowJauge; }
    void SetShowJauge(bool show) { Store(gauge_.ShowJauge, show, "ShowJauge"); }
    bool JaugeAnimation() const { return gauge_.JaugeAnimation; }
    void SetJaugeAnimation(bool animate) { Store(gauge_.JaugeAnimation, animate, "JaugeAnimation"); }
    // Whether items get sort keys and may be sorted, which way, and on which criterion they were last.
    bool Sorted() const { return sort_.Sorted; }
    void SetSorted(bool sorted) { Store(sort_.Sorted, sorted, "Sorted"); }
    SortSensType SortedSens() const { return sort_.SortedSens; }
    void SetSortedSens(SortSensType way) { Store(sort_.SortedSens, way, "SortedSens"); }
    uint8_t SortCurrent() const { return sort_.SortCurrent; }
    void SetSortCurrent(uint8_t criterion) { sort_.SortCurrent = criterion; }
    static std::string SepSortArg() { return {kSepSortArg}; }
    static std::string SepSortWithData() { return {kSepSortWithData}; }
    // The least thumbnail size of the slides; a slide larger than this takes its own longer side.
    int16_t ThumbnailSizeNormal() const { return thumbnailSizeNormal_; }
    void SetThumbnailSizeNormal(int16_t size);
    // OLEDragMode 1: a move of a pressed selected slide starts a drag. OLEDropMode 0: drops are not taken; 1: they are
    // told to the host; 2: the sheet takes them. The slides themselves do neither.
    int16_t OLEDragMode() const { return oleDragMode_; }
    void SetOLEDragMode(int16_t mode);
    int16_t OLEDropMode() const { return oleDropMode_; }
    void SetOLEDropMode(int16_t mode);

    // --- Properties of the slides: read from slide 0, set on all that are loaded ---
    bool AutoAdjust() const { return First().AutoAdjust(); }
    void SetAutoAdjust(bool adjust);
    bool AutoCornerResize() const { return First().AutoCornerResize(); }
    void SetAutoCornerResize(bool automatic);
    OLE_COLOR BackColorDiapo() const { return First().BackColor(); }
    void SetBackColorDiapo(OLE_COLOR color);
    OLE_COLOR BackColorSelected() const { return First().BackColorSelected(); }
    void SetBackColorSelected(OLE_COLOR color);
    OLE_COLOR BorderColorDiapo() const { return First().BorderColor(); }
    void SetBorderColorDiapo(OLE_COLOR color);
    OLE_COLOR BorderColorDiapoExt() const { return First().BorderColorExt(); }
    void SetBorderColorDiapoExt(OLE_COLOR color);
    bool BorderDouble() const { return First().BorderDouble(); }
    void SetBorderDouble(bool twice);
    int16_t BorderSize() const { return First().BorderSize(); }
    void SetBorderSize(int16_t size);  // fails with Overflow() outside a byte
    DiapoBorderStyle BorderStyleDiapo() const { return First().BorderStyle(); }
    void SetBorderStyleDiapo(DiapoBorderStyle style);
    DiapoBorderStyle BorderStyleDiapoExt() const { return First().BorderStyleExt(); }
    void SetBorderStyleDiapoExt(DiapoBorderStyle style);
    OLE_COLOR ForeColor() const { return First().ForeColor(); }
    void SetForeColor(OLE_COLOR color);
    const vorlane::Font& FontImageName() const { return First().FontImageName(); }
    void SetFontImageName(const vorlane::Font& font);
    uint8_t ImageMarge() const { return First().ImageMarge(); }
    void SetImageMarge(uint8_t margin);
    const vorlane::Font& LegendeFont() const { return First().FontBottom(); }
    void SetLegendeFont(const vorlane::Font& font);
    int16_t LegendeNbLig() const { return First().CaptionBottomNbLig(); }
    void SetLegendeNbLig(int16_t lines);
    const vorlane::Picture& MouseIcon() const { return First().MouseIcon(); }
    void SetMouseIcon(const vorlane::Picture& icon);
    int16_t MousePointer() const { return First().MousePointer(); }
    void SetMousePointer(int16_t shape);
    OLE_COLOR ShadowColor() const { return First().ShadowColor(); }
    void SetShadowColor(OLE_COLOR color);
    int16_t ShadowWidth() const { return First().ShadowWidth(); }
    void SetShadowWidth(int16_t width);  // fails with Overflow() outside a byte
    bool ShowDiapoTools() const { return First().ShowDiapoTools(); }
    void SetShowDiapoTools(bool show);
    bool ShowShadow() const { return First().ShowShadow(); }
    void SetShowShadow(bool show);
    bool ShowFileName() const { return First().ShowFileName(); }
    void SetShowFileName(bool show);
    bool ShowInfo() const { return First().ShowInfo(); }
    void SetShowInfo(bool show);
    bool ShowDiapoJauge() const { return First().ShowJauge(); }
    void SetShowDiapoJauge(bool show);
    bool ShowZoom() const { return First().ShowZoom(); }
    void SetShowZoom(bool show);
    bool Thumbnail() const { return First().Thumbnail(); }
    void SetThumbnail(bool thumbnail);
    DiapoThumbResolution ThumbnailResolution() const { return First().ThumbnailResolution(); }
    void SetThumbnailResolution(DiapoThumbResolution resolution);
    int16_t ThumbnailSizeHigh() const { return First().ThumbnailSizeHigh(); }
    void SetThumbnailSizeHigh(int16_t size);
    const std::string& ToolTipBtPlay() const { return First().ToolTipBtPlay(); }
    void SetToolTipBtPlay(const std::string& text);
    const std::string& ToolTipBtComment() const { return First().ToolTipBtComment(); }
    void SetToolTipBtComment(const std::string& text);
    const std::string& ToolTipBtText() const { return First().ToolTipBtText(); }
    void SetToolTipBtText(const std::string& text);

    VorlaneEvents Events;

private:
    using Fill = sheet::Fill;
    using Filled = sheet::Filled;
    using View = sheet::View;
    using Placement = sheet::Placement;
    using Placed = sheet::Placed;
    using NextCell = sheet::NextCell;
    using ListItem = sheet::ListItem;
    // An item that is about to go.
    struct Doomed;

    // lifecycle.cpp
    void Begin();
    OLE_COLOR DesignOfSelection() const;

    // properties.cpp
    static std::vector<PersistedProperty> MakePersistedProperties();
    template <class T>
    void Store(T& field, const T& value, std::string_view key) {
        if (field == value) return;
        field = value;
        PropertyChanged(key);
    }
    template <class Set, class Value>
    void SetOnSlides(Set set, const Value& value) {
        ForEachSlide([&](eDiapoLight& slide) { std::invoke(set, slide, value); });
    }
    template <class Get, class Set, class Value>
    void Forward(std::string_view key, Get get, Set set, const Value& value);

    // lifecycle.cpp
    // Runs an operation of the sheet; its failure raises Error with a log line of the operation and its arguments.
    template <class Result, class Operation, class... Arguments>
    Result Guard(Result otherwise, Operation&& operation, std::string_view name, const Arguments&... arguments) {
        const auto report = [&](const Failure& failure) {
            Report(failure, LogText(name, Diapo.Count(), arguments...));
        };
        return Trap(pending_, std::forward<Operation>(operation), report, otherwise);
    }
    template <class Operation, class... Arguments>
    void GuardVoid(Operation&& operation, std::string_view name, const Arguments&... arguments) {
        const auto run = [&] {
            std::forward<Operation>(operation)();
            return true;
        };
        Guard(false, run, name, arguments...);
    }
    void Report(const Failure& failure, const std::string& valeur);
    void Warn(std::string_view text) const;

    // cells.cpp
    grid::Frame Frame() const;
    void ComputeArea();
    int16_t ComputeCountX() const;
    int16_t ComputeCountY() const;
    void RequireGrid(double width, double height) const;
    int16_t RowLength() const;  // slides in one scroll step
    int16_t RowCount() const;
    grid::Spread SpreadCells(double slideWidth, double slideHeight);

    // items.cpp
    ListControl& Bound() const;  // fails with ObjectNotSet() once the sheet has ended
    int32_t ListCount() const { return Bound().ListCount(); }
    std::string ItemFullPath(int32_t index) const;
    std::optional<ListItem> NextItem(int32_t listIndex) const;
    bool BindList(ListeModeType mode, ListControl* newList);
    void FolderChanged(const std::function<void(FileListBox&)>& follow);
    void LstCopy();
    int32_t AddFolder(const std::string& folder, int32_t insertBefore);
    std::string SortKey(const std::string& fileName, int32_t mask) const;

    // slides.cpp
    std::shared_ptr<eDiapoLight> MakeSlide(int32_t index);
    void ConnectSlide(eDiapoLight& slide, int16_t index);
    vorlane::Picture PictureFor(DiapoPictureIndex index, const vorlane::Picture& present, bool invalidSound) const;
    eDiapoLight& First() const { return *Diapo.Item(0); }
    std::shared_ptr<eDiapoLight> Last() const { return Diapo.Item(Diapo.Count() - 1); }
    // Calls visit with each loaded slide, in the order of the array. A handler may load and unload slides meanwhile.
    template <class Visit>
    void ForEachSlide(Visit&& visit) const {
        for (int32_t k = 0; k <= Diapo.UpperBound(); ++k) {
            if (Diapo.Loaded(k)) visit(*Diapo.Item(k));
        }
    }
    // Index of the first loaded slide that passes a test, -1 for none.
    template <class Test>
    int16_t FindSlide(Test&& test) const {
        for (int32_t k = 0; k <= Diapo.UpperBound(); ++k) {
            if (Diapo.Loaded(k) && test(*Diapo.Item(k))) return ToInt16(k);
        }
        return -1;
    }
    int16_t SlotFromListIndex(int32_t listIndex) const;
    void UnloadDiapo(int32_t index);
    void ResetDiapo(int32_t index);
    void CopyDiapo(int16_t from, int16_t to);
    std::optional<int32_t> KeyOf(const eDiapoLight& slide) const;

    // display.cpp
    std::optional<int32_t> WantedItem(const std::string& startImageName, int32_t diapoKey);
    int16_t PositionOn(int32_t listIndex);
    void FillFrom(int32_t listIndex);
    int16_t FillFromTop();
    bool StartLect(int32_t start, int16_t slot, int16_t count);
    bool Lect(int32_t start, int16_t slot, int16_t count);
    bool RunFill(Fill& fill);
    bool FillSlots(Fill& fill);
    bool MayGoOn(const Fill& fill) const;
    Filled FillSlot(const Fill& fill, int32_t listIndex);
    void Rebind(int16_t cursor, const std::string& name, int32_t listIndex);
    void SweepByBand(eDiapoLight& slide);
    bool Blank() const;
    int16_t AddInterne(const std::string& imageName, int32_t listIndex, bool silent);
    bool AddBlankRow();
    bool Refused(std::string& imageName);
    NextCell FindNextCell(bool blank);
    int16_t LoadFor(int32_t listIndex, bool blank);
    bool SetDiapoImage(int16_t slot, const std::string& imageName, int32_t listIndex);
    bool SetDiapoPicture(int16_t slot, const std::string& imageName);

    // gauge.cpp
    void Repaint();
    void RepaintSlide(const eDiapoLight& slide);
    void ShowGauge(bool show);
    Box GaugeArea() const;
    void SlideGaugeIn();
    void SlideGaugeOut();
    void StepGauge(const Box& area, float top);

    // scrolling.cpp
    void InitVScroll(bool reset);
    void BarChanged(int32_t value);
    void MoveCurrentSlot(int64_t distance);
    bool IsWholeRow(int64_t distance) const;
    void FollowBar();
    bool Jump(int32_t value);
    bool AtListEnd() const;
    bool Scroll(int16_t up);
    bool ScrollForward();
    bool ScrollBack();

    // followwindow.cpp
    void ConnectBar();
    void BarPressed(int16_t button, int16_t shift, float x, float y);
    void BarReleased(int16_t button, int16_t shift, float x, float y);
    void TellOfBar(const Event<int16_t, int16_t, float, float, int32_t&>& told, int16_t button, int16_t shift, float x,
                   float y) const;
    void ThumbDragged(int32_t value);
    void OpenFollowWindow(FrmScroll& form);
    void CloseFollowWindow();

    // waitwindow.cpp
    WinRect GridOnScreen() const;
    void Subclass(bool attach);

    // sorting.cpp
    int16_t SortInt(uint8_t criterion, int32_t& anchor);
    int16_t AnchorSlot() const;

    // removal.cpp
    bool Stands(const ListBox& list, const Doomed& doomed) const;
    bool ShowsItems() const;
    bool SlidesLead() const;
    int32_t TopItem() const;
    bool TakeOut(ListBox& list, const Doomed& doomed, int16_t index);
    void Renumber(int32_t removed, int32_t ofItsSlide);
    bool CloseUp(int16_t index);
    void RefillEnd(int32_t next);
    void PullRow();
    bool TakeOutAll(ListBox& list, const std::vector<int32_t>& items);
    void AlignBar();
    int16_t FirstSelected() const;
    void ShowRest(const View& before, const std::vector<int32_t>& removed, bool undisturbed);

    // interaction/selection.cpp
    void Select(eDiapoLight& slide, OLE_COLOR ground, bool selected) const;
    OLE_COLOR GroundOf(int32_t listIndex) const;
    void SelectItem(int32_t listIndex, bool selected);
    int32_t SelectedItems() const;
    void SetCurrent(int16_t index);
    void TakeMarkFromOthers(int16_t index);
    template <class Wanted>
    void SelectItems(Wanted&& wanted);
    void ShowSelection();
    void ClearItems(int16_t exceptedIndex);
    MemoryListBox* UnwatchedList() const;
    // Selects what wanted says of each slide's state and each item's; atOnce does so on an unwatched list.
    void SelectWhole(bool (*wanted)(bool selected), void (MemoryListBox::*atOnce)());

    // interaction/zoom.cpp
    void ConnectSlideZoom(const sheet::SlideMember& member);
    WinRect ScreenRectOf(const eDiapoLight& slide) const;
    void OpenInfo(int16_t index, const eDiapoLight& slide);
    void CloseInfo();

    // interaction/sound.cpp
    void ConnectSlideSounds(const sheet::SlideMember& member);
    int32_t CanalOf(bool comment) const;
    void SlideClickPlay(int16_t index, bool comment);
    void SlideClickStop(int16_t index, bool comment);
    void StopSoundInt(bool comment, int16_t slot);
    int32_t StoppedMusicPicture(const eDiapoLight& slide) const;
    void ShowPlaying(int16_t slot, int32_t listIndex);
    void SoundTick();
    bool StillPlays(bool comment);

    // interaction/rename.cpp
    void ConnectEdit();
    void DropEdit();
    void TellTaken(const std::string& newPath, const std::string& oldPath, bool& cancel, MsgBoxObject* msgBox);
    void FollowRename(int32_t listIndex, const std::string& oldName, const std::string& newName, int16_t diapoIndex);
    void RenameFile(int32_t item, const std::string& oldPath, const std::string& newPath, int16_t slot);
    void CloseEdit(const std::string& newPath, const std::string& oldPath, bool canceled);
    void HideEdit();

    // interaction/mouse.cpp
    void ConnectSlideMouse(const sheet::SlideMember& member);
    bool CtrlDown() const;
    bool ShiftDown() const;
    void SlideMouseDown(int16_t index, int16_t button, int16_t shift, float x, float y);
    void SlideMouseMove(int16_t index, int16_t button, int16_t shift, float x, float y);
    void SlideMouseUp(int16_t index, int16_t button, int16_t shift, float x, float y);
    void PressOn(int16_t index, int16_t button, float x, float y);
    void SelectRange(int16_t index);
    void LeaveOthers(int16_t index);
    void LeaveOnlySelected(int16_t index);
    void Toggle(int16_t index);
    void ReleaseOn(int16_t index);
    void HoverOn(int16_t index);
    void Arm(float x, float y);
    bool StartsDrag(float x, float y) const;
    void StartDrag(eDiapoLight& slide, float x, float y);
    void DisarmUnlessHeld();
    using MouseEvent = Event<int16_t, int16_t, float, float>;
    void RaiseFrom(const eDiapoLight& slide, const MouseEvent& event, int16_t button, int16_t shift, float x, float y);

    // interaction/mouseground.cpp
    void ConnectGround();
    void InTurn(std::function<void()> act);
    void GroundMouseDown(int16_t button, int16_t shift, float x, float y);
    void GroundMouseMove(int16_t button, int16_t shift, float x, float y);
    void GroundMouseUp(int16_t button, int16_t shift, float x, float y);
    void KeyDown(int16_t& code, int16_t shift);
    void KeyPress(int16_t& ascii);
    void KeyUp(int16_t& code, int16_t shift);

    // interaction/band.cpp
    void StartBand(float x, float y);
    void EndBand();
    void UpdateBand(float x, float y, bool fromScroll);
    void SweepSlide(eDiapoLight& slide);
    bool ScrollByBand(float x, float y);
    void MoveAnchor(BandSide side);
    void SelectAtSide(BandSide side);
    void SweepAtSide(int16_t index, bool swept);

    // interaction/dragdrop.cpp
    void ConnectSlideDrags(const sheet::SlideMember& member);
    void ConnectGroundDrags();
    void ConnectDropsOn(Control& ground);
    void ConnectDragsFrom(Control& ground);
    void SlideStartDrag(int16_t index, DataObject& data, int32_t& effects);
    void PutSelectionInto(DataObject& data) const;
    void ShowGhost(int16_t index);
    void DragTick();
    void HideDrag();
    void EndDrag();
    void SlideCompleteDrag(int32_t& effect);

    // interaction/dragover.cpp
    bool EscapesDrag();
    bool HasPlaceFor(const sheet::DragEvent& drag);
    bool StepForeignDrag();
    void DragOverSlide(int16_t index, const sheet::DragEvent& drag);
    void AnswerOverSlide(int16_t index, const sheet::DragEvent& drag);
    void DragOverGround(const sheet::DragEvent& drag);
    void AskForForeignDrag(const sheet::DragEvent& drag);
    void OpenUnder(const sheet::DragEvent& drag);
    void LeaveGround(const sheet::DragEvent& drag);
    int32_t CountFilesIn(const std::string& path);

    // interaction/openrow.cpp
    int16_t RowOf(int32_t slide) const;
    droprow::Range SlidesOfRow(int16_t row) const;
    int16_t RowGap() const;
    droprow::Standing StandingOf(int32_t slide) const;
    std::vector<droprow::Standing> StandingsOf(const droprow::Range& range) const;
    void PlaceRow(const droprow::Range& range, const std::vector<droprow::Standing>& row);
    bool IsOpenElsewhere(int16_t index) const;
    void OpenRowAt(int16_t index, bool rightPart, bool force);
    bool Shift(const droprow::Range& range, size_t count);
    void DragRestoreLig(int16_t row);
    void CloseRow();
    void GiveWay(int16_t index, bool rightPart);
    std::optional<droprow::Standing> Neighbour(int16_t index, int32_t neighbour) const;
    float MarkHeight() const;
    void PlaceMark(int16_t index, bool rightPart);

    // interaction/drop.cpp
    void DropOnGround(const sheet::DragEvent& drop);
    void DropOnSlide(const sheet::DragEvent& drop);
    void RaiseDrop(const sheet::DragEvent& drop);
    void TakeDrop(const sheet::DragEvent& drop);
    int32_t MoveFiles(ListBox& list, const std::vector<DraggedFile>& files, int32_t place);
    std::vector<std::string> MovedTexts(const ListBox& list, const std::vector<int32_t>& items,
                                        const std::vector<DraggedFile>& files) const;
    std::string TextOf(const DraggedFile& file) const;
    int32_t PutItem(ListBox& list, const std::string& text, int32_t key, int32_t index);
    void ShowMoved(int32_t movedAbove);
    int32_t AddFiles(ListBox& list, const std::vector<DraggedFile>& files, int32_t place);
    int32_t AddFile(ListBox& list, DraggedFile file, int32_t place);
    void ShowDropped();
    void ShowSorted();

    // relayout.cpp
    void Resized() override { Resize(); }
    void Resize();
    bool HasSlides() const;
    bool ChangeSlideSize(bool dimAll, int16_t newWidth, int16_t newHeight);
    float FreshToken();
    bool PlaceDiapos(int16_t wanted, float token, int16_t newWidth, int16_t newHeight);
    void HideFrom(int32_t first);
    std::optional<std::string> ItemShownBy(const eDiapoLight& slide) const;
    bool PlaceAll(Placement& placement);
    Placed PlaceSlot(int16_t slot, Placement& placement);
    Placed MakeMissing(int16_t slot, std::string& name);
    bool MayGoOn(const Placement& placement) const;
    void ResizeTick();
    void UnloadTick();
    void UnloadExtraDiapos();
    void UnloadSurplus();

    sheet::Grid grid_;
    sheet::Items items_;
    sheet::Pass pass_;
    sheet::Bar bar_;
    sheet::Layout layout_;
    sheet::Selection selection_;
    sheet::Mouse mouse_;
    sheet::Band band_;
    sheet::Drag drag_;
    sheet::Gauge gauge_;
    sheet::Sorting sort_;
    sheet::Sound sound_;
    sheet::Window window_;
    bool inEndEdit_ = false;  // a rename is being ended
    std::string captionWait_;
    std::unique_ptr<clsToolTip> infoTip_;  // while the info button is held
    int16_t thumbnailSizeNormal_ = 0;
    int16_t oleDragMode_ = 0;
    int16_t oleDropMode_ = 0;
    bool internalDrag_ = false;  // a drag that started here is running
    RandomMarks random_;
    PendingError pending_;

public:
    // The pool; slide 0 is always there, the template and the measure of all. It is made last and goes first, for the
    // slides ask the sheet from their beginning.
    ControlArray<eDiapoLight> Diapo;
};

}  // namespace vorlane
