// What the contact sheet remembers, a struct a topic. A topic's room writes its own struct and only reads the others'.
// Behind them stand the values of a fill, a layout and a removal under way.
#pragma once

#include "platform/color.h"
#include "platform/geometry.h"
#include "platform/listbox.h"
#include "sheet/grid.h"
#include "sheet/types.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace vorlane {
class DataObject;
}  // namespace vorlane

namespace vorlane::sheet {

struct Grid {
    int16_t CountDiapoX = 0;  // columns and rows of the pool
    int16_t CountDiapoY = 0;
    grid::Area Area;     // as last computed
    int16_t MargeX = 0;  // present gaps between columns and rows
    int16_t MargeY = 0;
    int16_t Marges = 0;
    int16_t MargeDiapoMin = 0;
    bool MargeDiapoAutoAdjust = false;
};

struct Items {
    ListControl* Liste = nullptr;  // the bound list; none once the sheet has ended
    std::string Path;
    std::string Pattern = "*.*";
    bool ListAutoFill = false;
    int32_t StdSortArgs = 30;   // what sort keys hold, a sum of SortArgsType
    bool FromInit = false;      // Path and Pattern do not read the folder
    bool InternalCopy = false;  // LstInterne is bound and wants filling from a folder
    bool InInitListe = false;   // InitListe is running
};

struct Pass {
    bool NoSlideYet = true;      // no slide was ever made: the first fill makes slide 0 too
    int32_t FirstListIndex = 0;  // where the fill started last begins
    int16_t FirstSlot = 0;       // and the slide that it begins at
    float LectToken = 0;         // mark of the last started fill or layout
    bool StopLect = false;       // a running fill or layout has to stop
    int32_t Fills = 0;           // counts the fills that were started and the times that the sheet was cleared
    int32_t Running = 0;         // fills under way, one inside another, and slides that are being made or pictured
    bool Unfinished = false;     // the newest fill was stopped by another grid: slides may show what stood before
};

struct Bar {
    ScrollDirectionType ScrollDirection = ScrollDirectionType::sdVertical;
    ScrollWindowPosType ScrollWindowPos = ScrollWindowPosType::swpOutside;
    int16_t ScrollWindowWidth = 0;
    OLE_COLOR ScrollWindowBackColor = 0;
    int32_t ScrollValue = 0;        // bar value last acted on
    bool InVScrollInit = false;     // the bar is being set up: its changes are no scrolls
    bool Changing = false;          // a change of the bar is being acted on
    bool JumpNext = false;          // the next change of the bar fills anew, however small it is
    bool ScrollBarDown = false;     // the left button went down on the bar
    bool ScrollWindowOpen = false;  // the follow window was shown for this drag of the thumb
};

struct Layout {
    bool Ready = false;     // the properties are there; no resize counts before
    bool NotShown = true;   // the control has not come to the screen yet
    bool Resizing = false;  // a resize or a layout is under way
    bool Stale = false;     // no layout has come to its end since the last one began
};

struct Selection {
    int16_t CurrentSlot = -1;       // the current slide, -1 for none
    int32_t CurrentListIndex = -1;  // its item
    int32_t AnchorListIndex = 0;    // item toggled last without Shift: where a Shift range begins
    OLE_COLOR SelectedColor = 0;    // ground of selected slides, as it was when the sheet started
    OLE_COLOR BackColorCurrent = 0;
    bool SelectionMultiple = false;
};

// The user's mouse and keys.
struct Mouse {
    int16_t HoverSlot = -1;      // the slide under the mouse, -1 for none
    int16_t LastButton = 0;      // of the last press on the ground
    bool InMouseDown = false;    // a press on a slide is being handled
    bool KeptSelection = false;  // the last press on a slide left the selection as it was
    bool DragArmed = false;      // a move may become a drag
    int32_t DownX = 0;           // where it was armed, in twips of the slide
    int32_t DownY = 0;
    bool KeyHeld = false;                      // a key is down and has been heard
    bool InGroundDown = false;                 // a press on the ground is about to be told
    bool LetGo = false;                        // the left button has gone up since that press
    std::deque<std::function<void()>> InTurn;  // presses, releases and clicks on the ground that wait for its end
};

// The rubber band.
struct Band {
    bool Active = false;
    int32_t StartX = 0;  // its anchor, in pixels of the sheet; moves along while the sheet scrolls
    int32_t StartY = 0;
    Box Rect;                     // whole pixels
    bool AutoScrolling = false;   // it is scrolling the sheet
    std::vector<int32_t> Before;  // the items that were selected when it started, ascending
};

// A drag over the sheet, or from it.
struct Drag {
    Point Origin;                // where the pointer was last, on the screen
    int16_t OpenRow = 0;         // the row that is open, from 1; 0 for none
    int16_t DropSlot = 0;        // the slide in front of which items go
    bool DropRightPart = false;  // they go behind it instead
    std::string DisplayText;     // what the mark says, as the host wants it
    bool Own = false;            // it has started on a slide here
    bool Cancel = false;         // the host keeps the drag off the sheet
    bool BusyShifting = false;   // a row is opening
    bool Moving = false;         // a drop is taking out the items that it moves
    bool Moved = false;          // the drag from here has moved its items
    int32_t Counted = -1;        // how many files it brings from outside; -1 until that is asked for
    uint32_t Ends = 0;           // how many drags have ended: tells whoever let the message loop run
};

struct Gauge {
    bool ShowJauge = false;
    bool JaugeAnimation = false;
};

struct Sorting {
    bool Sorted = false;
    SortSensType SortedSens = SortSensType::ssNone;
    uint8_t SortCurrent = 0;  // criterion last sorted on
};

struct Window {
    bool Subclassed = false;  // the messages of the sheet's window are attached
    bool WaitOpen = false;    // the wait window is open, as WaitShow and WaitClose have left it
    uint32_t WaitShows = 0;   // calls of WaitShow
};

// What was played last on a channel.
struct Channel {
    std::string Alias;
    bool Failed = false;  // it could not be played, and the tick has not said so yet
};

struct Sound {
    Channel Music;
    Channel Comment;
    int32_t PlayingListIndex = -1;  // the item whose slide plays, or has played last

    Channel& Of(bool comment) { return comment ? Comment : Music; }
    const Channel& Of(bool comment) const { return comment ? Comment : Music; }
};

// A drag over the sheet or a drop on it, as it is heard.
struct DragEvent {
    DataObject& Data;
    int32_t& Effect;  // the answer: a sum of 1 copy, 2 move
    int16_t Button;
    int16_t Shift;
    float X;  // pixels of the sheet
    float Y;
    int16_t State;  // of those below; a drop has none
};
inline constexpr int16_t kDragEnter = 0;
inline constexpr int16_t kDragLeave = 1;
inline constexpr int16_t kDragOver = 2;

// A fill under way.
struct Fill {
    int32_t Start;   // first list index
    int16_t Slot;    // first slide; -1 means 0
    int16_t Count;   // slides to fill; -1 means as many as there are
    int16_t Pool;    // pool size at its beginning
    int16_t Cursor;  // next slide
};
enum class Filled : uint8_t { Yes, Refused, Lost };  // Lost: a handler has taken the slide away

// What the slides showed when items began to go.
struct View {
    int32_t Top;       // list index at slide 0
    int16_t Slot;      // the first selected slide; 0 when there is none
    int32_t SlotItem;  // its list index
};

// A layout under way.
struct Placement {
    int16_t Wanted;  // slides to lay out
    float Token;     // LectToken at its beginning
    double Width;    // slide size in force
    double Height;
    double X;  // next place
    double Y;
    double RowStart;
    bool AtEnd;  // the list has no more items
};
enum class Placed : uint8_t { Yes, Skipped, AtEnd };

struct NextCell {
    float X;
    float Y;
};

struct ListItem {
    std::string Name;
    int32_t ListIndex;
};

}  // namespace vorlane::sheet
