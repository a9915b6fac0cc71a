// The enumerations of the widgets, with the core's numbers. Those of properties are plain ones since form designers
// write their values without the name of the enumeration.
#pragma once

#include <QObject>

namespace vorlane::ui {

Q_NAMESPACE

enum BorderStyle : int {
    BorderNone = 0,
    BorderSunken = 1,
    BorderRaised = 2,
    BorderSunkenDouble = 3,
    BorderRaisedDouble = 4,
    FlatBackColor = 5,
};
Q_ENUM_NS(BorderStyle)

enum ThumbResolution : int { ThumbResolutionNormal = 0, ThumbResolutionHigh = 1 };
Q_ENUM_NS(ThumbResolution)

// The picture that a slide asks for.
enum class PictureIndex {
    PicSubstitute = 0,
    PicFileKind1 = 1,
    PicFileKind2 = 2,
    PicFileKind3 = 3,
    PicFileKind5 = 4,
    PicBtPlay = 5,
    PicBtComment = 6,
    PicBtText = 7,
    PicBtPlayPlain = 8,
};
Q_ENUM_NS(PictureIndex)

enum ScrollDirection : int { sdHorizontal = 1, sdVertical = 2 };
Q_ENUM_NS(ScrollDirection)

enum SortSens : int { ssNone = 0, ssAscending = 1, ssDescending = 2 };
Q_ENUM_NS(SortSens)

enum ScrollWindowPos : int { swpOutside = 0, swpInside = 1 };
Q_ENUM_NS(ScrollWindowPos)

enum class ListeMode { lmFileList = 0, lmList = 1 };
Q_ENUM_NS(ListeMode)

// Where a time line's marks stand: at whole seconds, or one to a slide.
enum TimeMarks : int { etltFree = 0, etltFollowDiapo = 1 };
Q_ENUM_NS(TimeMarks)

// Where the wait window stands over the sheet, and slides in from.
enum class WaitPlace {
    None = 0,
    TopLeft = 1,
    Top = 2,
    TopRight = 3,
    Left = 4,
    Middle = 5,
    Right = 6,
    BottomLeft = 7,
    Bottom = 8,
    BottomRight = 9,
};
Q_ENUM_NS(WaitPlace)

// What can be wrong with a sound.
enum class SoundTrouble {
    Missing = 0,     // the file is not there
    Unplayable = 1,  // it is damaged, or no sound
    Gone = 2,        // the file has gone while it plays; it is heard as far as the system still gives it
    NoDevice = 3,    // there is nothing to hear it on: it plays silently, or ends if the device has gone
    Unreadable = 4,  // the file may not be read
};
Q_ENUM_NS(SoundTrouble)

}  // namespace vorlane::ui
