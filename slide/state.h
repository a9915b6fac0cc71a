// What the slide remembers, a struct a topic.
#pragma once

#include "platform/color.h"
#include "platform/geometry.h"
#include "slide/diapotypes.h"
#include "slide/fit.h"

#include <cstdint>
#include <string>

namespace vorlane::slide {

// The persisted properties that no child and no surface keeps.
struct Settings {
    bool NoResize = true;
    bool AlwaysFullSize = false;
    bool AutoAdjust = false;
    bool AutoCornerResize = false;
    OLE_COLOR BackColorSelected = 0;
    OLE_COLOR BorderColor = 0;
    OLE_COLOR BorderColorExt = 0;
    bool BorderDouble = false;
    uint8_t BorderSize = 0;
    DiapoBorderStyle BorderStyle = DiapoBorderStyle::BorderNone;
    DiapoBorderStyle BorderStyleExt = DiapoBorderStyle::BorderNone;
    int16_t CaptionBottomNbLig = 0;
    uint8_t ImageMarge = 0;
    bool Selected = false;
    uint8_t ShadowWidth = 0;
    bool ShowShadow = false;
    OLE_COLOR ShadowColor = 0;
    bool Thumbnail = false;
    DiapoThumbResolution ThumbnailResolution = DiapoThumbResolution::ThumbResolutionNormal;
    int16_t ThumbnailSizeNormal = 0;
    int16_t ThumbnailSizeHigh = 0;
    int32_t Value = 0;
    bool ShowFileName = false;
    bool ShowInfo = false;
    bool ShowZoom = false;
    bool ShowJauge = false;
    bool ShowDiapoTools = false;
};

struct LifeCycle {
    bool Ready = false;               // the properties are there; no layout runs before
    bool PendingFirstLayout = false;  // the first Show lays out
};

struct Ground {
    OLE_COLOR Normal = 0;         // of an unselected slide
    bool ShowsSelection = false;  // the surface shows a selection colour now
};

struct Media {
    bool SoundMusic = false;
    bool SoundComment = false;
    bool Texte = false;
    bool InvalidMusic = false;  // that sound's file can't be played
    bool InvalidComm = false;
    bool OnGetThumb = false;
};

struct ImageState {
    PictureSize Native;          // of the last picture assigned
    PictureSize Fit;             // on screen, as last computed
    WinRect Area;                // the picture area of the last layout
    bool IsSubstitute = false;   // the picture stands for the file, it is not the file's own
    bool HasGivenThumb = false;  // the picture comes from a thumbnail that the caller had
    uint32_t Files = 0;          // counts the files that the slide was given
};

struct Place {
    float Col = 0;
    float Lig = 0;
    std::string DataSort;
    bool SelectedTmp = false;
};

// The button that is down, of the three and the info button; only one can be.
struct ButtonPress {
    bool Down = false;
    float Top = 0;  // where it stood before
};

// The zoom, from the press on its corner to the release.
struct Zoom {
    bool Busy = false;      // the press is being worked on
    bool Active = false;    // the window is there for moves to pull
    bool Released = false;  // the button has gone up since the press
    Point Anchor;           // the pointer when the window opened, screen pixels
    WinRect Slide;          // the slide's place then
};

}  // namespace vorlane::slide
