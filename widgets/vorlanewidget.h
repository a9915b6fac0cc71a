// VorlaneWidget: the contact sheet (Vorlane) as a widget. It holds no rule of the sheet's: it hands properties, methods
// and events over in Qt's types.
//
// Names are the sheet's own, without accents, events with "On" in front. An argument that a receiver may answer is a
// pointer; it is good until the signal returns, so such a signal wants a direct connection. Lengths are pixels. No
// member throws: what the sheet refuses leaves it as it was, gives 0, false or -1, and raises OnError.
#pragma once

#include "platform/dataobject.h"
#include "platform/failure.h"
#include "platform/qt/controlhost.h"
#include "widgets/enums.h"
#include "widgets/vorlanelist.h"

#include <optional>

#include <QByteArray>
#include <QColor>
#include <QFont>
#include <QImage>
#include <QPixmap>
#include <QPointF>
#include <QRectF>
#include <QString>

namespace vorlane {

class ListControl;
class MsgBoxObject;
class Vorlane;
enum class SoundTrouble;

// What a host hands a slide that is about to take a file.
struct SlideContent {
    QImage Picture;  // a thumbnail; the file is not decoded then
    bool HaveSound = false;
    bool HaveComment = false;
    bool HaveTexte = false;
    bool InvalidMusic = false;
    bool InvalidCom = false;
};

class VorlaneWidget : public ControlHost {
    Q_OBJECT
    Q_PROPERTY(bool AutoAdjust READ AutoAdjust WRITE SetAutoAdjust)
    Q_PROPERTY(bool AutoCornerResize READ AutoCornerResize WRITE SetAutoCornerResize)
    Q_PROPERTY(QColor BackColor READ BackColor WRITE SetBackColor)
    Q_PROPERTY(QColor BackColorCurrent READ BackColorCurrent WRITE SetBackColorCurrent)
    Q_PROPERTY(QColor BackColorDiapo READ BackColorDiapo WRITE SetBackColorDiapo)
    Q_PROPERTY(QColor BackColorSelected READ BackColorSelected WRITE SetBackColorSelected)
    Q_PROPERTY(QColor BorderColorDiapo READ BorderColorDiapo WRITE SetBorderColorDiapo)
    Q_PROPERTY(QColor BorderColorDiapoExt READ BorderColorDiapoExt WRITE SetBorderColorDiapoExt)
    Q_PROPERTY(bool BorderDouble READ BorderDouble WRITE SetBorderDouble)
    Q_PROPERTY(int BorderSize READ BorderSize WRITE SetBorderSize)
    Q_PROPERTY(int BorderStyle READ BorderStyle WRITE SetBorderStyle)
    Q_PROPERTY(vorlane::ui::BorderStyle BorderStyleDiapo READ BorderStyleDiapo WRITE SetBorderStyleDiapo)
    Q_PROPERTY(vorlane::ui::BorderStyle BorderStyleDiapoExt READ BorderStyleDiapoExt WRITE SetBorderStyleDiapoExt)
    Q_PROPERTY(QString CaptionWait READ CaptionWait WRITE SetCaptionWait)
    Q_PROPERTY(int DiapoHeight READ DiapoHeight WRITE SetDiapoHeight)
    Q_PROPERTY(int DiapoWidth READ DiapoWidth WRITE SetDiapoWidth)
    Q_PROPERTY(bool Enabled READ Enabled WRITE SetEnabled)
    Q_PROPERTY(QFont FontImageName READ FontImageName WRITE SetFontImageName)
    Q_PROPERTY(QColor ForeColor READ ForeColor WRITE SetForeColor)
    Q_PROPERTY(int ImageMarge READ ImageMarge WRITE SetImageMarge)
    Q_PROPERTY(bool JaugeAnimation READ JaugeAnimation WRITE SetJaugeAnimation)
    Q_PROPERTY(QFont LegendeFont READ LegendeFont WRITE SetLegendeFont)
    Q_PROPERTY(int LegendeNbLig READ LegendeNbLig WRITE SetLegendeNbLig)
    Q_PROPERTY(bool ListAutoFill READ ListAutoFill WRITE SetListAutoFill)
    Q_PROPERTY(bool MargeDiapoAutoAdjust READ MargeDiapoAutoAdjust WRITE SetMargeDiapoAutoAdjust)
    Q_PROPERTY(int MargeDiapoMin READ MargeDiapoMin WRITE SetMargeDiapoMin)
    Q_PROPERTY(int Marges READ Marges WRITE SetMarges)
    Q_PROPERTY(QPixmap MouseIcon READ MouseIcon WRITE SetMouseIcon)
    Q_PROPERTY(int MousePointer READ MousePointer WRITE SetMousePointer)
    Q_PROPERTY(int OLEDragMode READ OLEDragMode WRITE SetOLEDragMode)
    Q_PROPERTY(int OLEDropMode READ OLEDropMode WRITE SetOLEDropMode)
    Q_PROPERTY(vorlane::ui::ScrollDirection ScrollDirection READ ScrollDirection WRITE SetScrollDirection)
    Q_PROPERTY(QColor ScrollWindowBackColor READ ScrollWindowBackColor WRITE SetScrollWindowBackColor)
    Q_PROPERTY(vorlane::ui::ScrollWindowPos ScrollWindowPos READ ScrollWindowPos WRITE SetScrollWindowPos)
    Q_PROPERTY(int ScrollWindowWidth READ ScrollWindowWidth WRITE SetScrollWindowWidth)
    Q_PROPERTY(bool SelectionMultiple READ SelectionMultiple WRITE SetSelectionMultiple)
    Q_PROPERTY(QColor ShadowColor READ ShadowColor WRITE SetShadowColor)
    Q_PROPERTY(int ShadowWidth READ ShadowWidth WRITE SetShadowWidth)
    Q_PROPERTY(bool ShowDiapoTools READ ShowDiapoTools WRITE SetShowDiapoTools)
    Q_PROPERTY(bool ShowFileName READ ShowFileName WRITE SetShowFileName)
    Q_PROPERTY(bool ShowInfo READ ShowInfo WRITE SetShowInfo)
    Q_PROPERTY(bool ShowJauge READ ShowJauge WRITE SetShowJauge)
    Q_PROPERTY(bool ShowShadow READ ShowShadow WRITE SetShowShadow)
    Q_PROPERTY(bool ShowZoom READ ShowZoom WRITE SetShowZoom)
    Q_PROPERTY(bool Sorted READ Sorted WRITE SetSorted)
    Q_PROPERTY(vorlane::ui::SortSens SortedSens READ SortedSens WRITE SetSortedSens)
    Q_PROPERTY(bool Thumbnail READ Thumbnail WRITE SetThumbnail)
    Q_PROPERTY(vorlane::ui::ThumbResolution ThumbnailResolution READ ThumbnailResolution WRITE SetThumbnailResolution)
    Q_PROPERTY(int ThumbnailSizeHigh READ ThumbnailSizeHigh WRITE SetThumbnailSizeHigh)
    Q_PROPERTY(int ThumbnailSizeNormal READ ThumbnailSizeNormal WRITE SetThumbnailSizeNormal)

public:
    // On the program's shared desktop.
    explicit VorlaneWidget(QWidget* parent = nullptr);
    explicit VorlaneWidget(QtDesktop& desktop, QWidget* parent = nullptr);
    ~VorlaneWidget() override;

    // The sheet itself.
    Vorlane& sheet() const { return sheet_; }

    QSize sizeHint() const override;

    // --- Persisted properties ---
    bool AutoAdjust() const;
    void SetAutoAdjust(bool on);
    bool AutoCornerResize() const;
    void SetAutoCornerResize(bool on);
    QColor BackColor() const;
    void SetBackColor(const QColor& color);
    QColor BackColorCurrent() const;
    void SetBackColorCurrent(const QColor& color);
    QColor BackColorDiapo() const;
    void SetBackColorDiapo(const QColor& color);
    QColor BackColorSelected() const;
    void SetBackColorSelected(const QColor& color);
    QColor BorderColorDiapo() const;
    void SetBorderColorDiapo(const QColor& color);
    QColor BorderColorDiapoExt() const;
    void SetBorderColorDiapoExt(const QColor& color);
    bool BorderDouble() const;
    void SetBorderDouble(bool on);
    int BorderSize() const;
    void SetBorderSize(int value);
    int BorderStyle() const;
    void SetBorderStyle(int value);
    ui::BorderStyle BorderStyleDiapo() const;
    void SetBorderStyleDiapo(ui::BorderStyle style);
    ui::BorderStyle BorderStyleDiapoExt() const;
    void SetBorderStyleDiapoExt(ui::BorderStyle style);
    QString CaptionWait() const;
    void SetCaptionWait(const QString& text);
    int DiapoHeight() const;
    void SetDiapoHeight(int value);
    int DiapoWidth() const;
    void SetDiapoWidth(int value);
    bool Enabled() const;
    void SetEnabled(bool on);
    QFont FontImageName() const;
    void SetFontImageName(const QFont& font);
    QColor ForeColor() const;
    void SetForeColor(const QColor& color);
    int ImageMarge() const;
    void SetImageMarge(int value);
    bool JaugeAnimation() const;
    void SetJaugeAnimation(bool on);
    QFont LegendeFont() const;
    void SetLegendeFont(const QFont& font);
    int LegendeNbLig() const;
    void SetLegendeNbLig(int value);
    bool ListAutoFill() const;
    void SetListAutoFill(bool on);
    bool MargeDiapoAutoAdjust() const;
    void SetMargeDiapoAutoAdjust(bool on);
    int MargeDiapoMin() const;
    void SetMargeDiapoMin(int value);
    int Marges() const;
    void SetMarges(int value);
    QPixmap MouseIcon() const;
    void SetMouseIcon(const QPixmap& icon);
    int MousePointer() const;
    void SetMousePointer(int value);
    int OLEDragMode() const;
    void SetOLEDragMode(int value);
    int OLEDropMode() const;
    void SetOLEDropMode(int value);
    ui::ScrollDirection ScrollDirection() const;
    void SetScrollDirection(ui::ScrollDirection style);
    QColor ScrollWindowBackColor() const;
    void SetScrollWindowBackColor(const QColor& color);
    ui::ScrollWindowPos ScrollWindowPos() const;
    void SetScrollWindowPos(ui::ScrollWindowPos style);
    int ScrollWindowWidth() const;
    void SetScrollWindowWidth(int value);
    bool SelectionMultiple() const;
    void SetSelectionMultiple(bool on);
    QColor ShadowColor() const;
    void SetShadowColor(const QColor& color);
    int ShadowWidth() const;
    void SetShadowWidth(int value);
    bool ShowDiapoTools() const;
    void SetShowDiapoTools(bool on);
    bool ShowFileName() const;
    void SetShowFileName(bool on);
    bool ShowInfo() const;
    void SetShowInfo(bool on);
    bool ShowJauge() const;
    void SetShowJauge(bool on);
    bool ShowShadow() const;
    void SetShowShadow(bool on);
    bool ShowZoom() const;
    void SetShowZoom(bool on);
    bool Sorted() const;
    void SetSorted(bool on);
    ui::SortSens SortedSens() const;
    void SetSortedSens(ui::SortSens style);
    bool Thumbnail() const;
    void SetThumbnail(bool on);
    ui::ThumbResolution ThumbnailResolution() const;
    void SetThumbnailResolution(ui::ThumbResolution style);
    int ThumbnailSizeHigh() const;
    void SetThumbnailSizeHigh(int value);
    int ThumbnailSizeNormal() const;
    void SetThumbnailSizeNormal(int value);

    // The persisted properties as a text (UTF-8, JSON), without those that have their defaults; and back. Whether the
    // text could be read: otherwise nothing changes and OnError is raised. What it leaves out gets its default.
    QByteArray SaveProperties() const;
    bool RestoreProperties(const QByteArray& text);

    // --- Other properties ---
    QString AliasMusic() const;
    void SetAliasMusic(const QString& text);
    QString AliasComment() const;
    void SetAliasComment(const QString& text);
    QString Path() const;
    void SetPath(const QString& text);
    QString Pattern() const;
    void SetPattern(const QString& text);
    bool ShowDiapoJauge() const;
    void SetShowDiapoJauge(bool on);
    QString ToolTipBtComment() const;
    void SetToolTipBtComment(const QString& text);
    QString ToolTipBtPlay() const;
    void SetToolTipBtPlay(const QString& text);
    QString ToolTipBtText() const;
    void SetToolTipBtText(const QString& text);
    void SetFromInit(bool fromInit);
    int SortCurrent() const;
    void SetSortCurrent(int criterion);
    static QString SepSortArg();
    static QString SepSortWithData();

    // --- Selection ---
    int CountSelected() const;
    // List indices of the selected items, ascending.
    QList<int> SelectedTableau() const;
    int CurrentDiapo() const;
    bool Selected(int index) const;
    void SetSelected(int index, bool selected);

    // --- State ---
    int Count() const;
    int CountDiapo() const;
    int CountDiapoX() const;
    int CountDiapoY() const;
    int CountAffiche() const;
    // Of the scroll bar, in pixels, whether it is in sight or not.
    static int BarThickness();
    // The text under the name of a slide. It goes with the slide's item while rows are scrolled; a slide that takes
    // another item keeps it until the host, told by OnAdded, sets it anew.
    QString CaptionBottom(int index) const;
    void SetCaptionBottom(int index, const QString& text);
    int Key(int listIndex) const;
    QString ImageFullPath(int listIndex) const;
    int Hwnd() const;
    int hDC() const;
    // The list index that a slide shows, -1 for none; and where it lies, empty for a slide that isn't shown.
    int Value(int index) const;
    QRectF DiapoRect(int index) const;
    // Whether a slide has a button for its music, for its comment.
    bool HaveSoundMusic(int index) const;
    void SetHaveSoundMusic(int index, bool have);
    bool HaveSoundComment(int index) const;
    void SetHaveSoundComment(int index, bool have);
    // Whether that sound's file can't be played: the button shows it from its next picture on, such as when it comes.
    bool HaveInvalidMusic(int index) const;
    void SetHaveInvalidMusic(int index, bool invalid);
    bool HaveInvalidComm(int index) const;
    void SetHaveInvalidComm(int index, bool invalid);
    // Where its name stands; empty for a slide that isn't shown or shows no name.
    QRectF NameRect(int index) const;

    // --- Items ---
    int Add(const QString& imageName, const QString& multipleDataSort = {}, int key = -1, int insertBefore = -1);
    void InitListe(ui::ListeMode mode, ListControl* newList = nullptr, const QString& newPath = {},
                   const QString& newPattern = {}, std::optional<int> stdSortArgs = {});
    // The bound list.
    VorlaneList Liste() const;
    // Takes the item of a slide, or all selected items, off the list; the slides close up.
    void Remove(int index);
    void RemoveAllSelected();
    int GetListIndexFromItemData(int key);
    int GetIndexFromKey(int key) const;
    // On a criterion of the sort data, from 1; 0 stands for the last one.
    void Sort(int argIndice = 0);

    // --- Display ---
    int StartLecture(const QString& startImageName = {}, int diapoKey = -1);
    // Turns place into the coordinates of the slide.
    int GetDiapoFromCol(QPointF* place, bool* rightPart = nullptr);
    void DiapoSizeChange(bool dimAll, int newWidth, int newHeight);
    // A reduced copy, as the first slide makes it; null when it can't be made.
    QImage Thumb(const QImage& picture, int resolution = -1) const;

    // --- Drags ---
    // How many files dragged data brings, those of its folders included.
    int CountObject(const DataObject* dragged);
    // During a drag over the sheet, and in OnOLEBeforeDropStart: the list index in front of which a drop puts items,
    // the number of items for the end. A sort puts them where they belong.
    int DropPlace() const;

    // --- Rename in place ---
    // Closes the box over a name: renames the file, its item and its slide, or with cancel leaves all as it was. A name
    // that is refused is told, by msgBox if one is given, and the box stays. Gives cancel as the receivers of
    // OnRenameError have left it.
    bool EndEdit(bool cancel = false, MsgBoxObject* msgBox = nullptr);
    // Gives an item and its slide (-1: the one that shows it) another file. Touches no file.
    void RenameDiapo(int listIndex, const QString& oldName, const QString& newName, int diapoIndex = -1);

    // --- Wait window ---
    bool IsWaitOpen() const;

public Q_SLOTS:
    void SelectAll();
    void SelectInvert();
    void SelectedClear(int exceptedIndex = -1);
    // Plays a click on the slide.
    void SetCurrentDiapo(int index);
    // Lets the user drag from the sheet as a whole: OnOLEStartDrag gives the data. Returns when that has ended.
    void OLEDrag();
    // Ends what a drag shows on the sheet, and leaves nothing selected.
    void OleResetDrag();
    void Clear();
    void Refresh();
    // Starts the sheet with its present properties, as a saved one starts: what it takes over once at its start, as the
    // ground of selected slides, it takes over as it is now. Shows its items and its selection as before.
    void StartAgain();
    // Ends the sheet's work: it has no list, no timers and no messages then. Harmless when called again.
    void Terminate();
    // Shows the sound button of a slide, 0 music or 1 comment, as playing or stopped.
    void BtState(int index, int typeBt, bool modePlayed);
    // Stops the music (0), the comment (1) or both (-1) and restores their buttons.
    void StopSound(int only = -1);
    // Opens a box over the slide's name.
    void StartEdit(int index);
    // Over the sheet without its bar; what it says is set at once.
    void WaitShow(const QString& newCaption, vorlane::ui::WaitPlace fromWhere, bool withoutEffect = false);
    void SetWaitCaption(const QString& caption);
    void WaitClose(bool withoutEffect = false);

Q_SIGNALS:
    void PropertyChanged(const QString& key);

    void OnDisplayStart();
    void OnDisplayEnd();
    void OnBeforeAdd(QString* fileName, const QString& extension, bool* cancel);
    void OnAdded(int index, const QString& fileName);
    void OnBeforeSetPicture(int index, const QString& fileName, vorlane::SlideContent* content);
    void OnInvalidPicture(int index, const QString& fileName);
    void OnScroll(int value, int* asValue);
    void OnScrollMouseDown(int button, int shift, double x, double y, int* value);
    void OnScrollMouseUp(int button, int shift, double x, double y, int* value);
    void OnGetThumbPath(const QString& fileName, QString* thumbName);
    void OnTLClear();
    void OnRemoved(int index, int* key);
    void OnTLRefresh();
    void OnSorted();
    void OnTraitementFeedBack(int value, int max);
    void OnOLEBeforeStartDrag(int nbObject, QString* displayText, bool* cancel);
    void OnOLEStartDrag(vorlane::DataObject* dragged, int* allowedEffects);
    void OnOLEDragOver(vorlane::DataObject* dragged, int* effect, int button, int shift, double x, double y, int state);
    void OnOLEDragDrop(vorlane::DataObject* dragged, int* effect, int button, int shift, double x, double y);
    void OnOLEGiveFeedback(int* effect, bool* defaultCursors);
    void OnOLESetData(vorlane::DataObject* dragged, int* dataFormat);
    void OnOLECompleteDrag(int* effect);
    void OnOLEBeforeDropStart(int numberOfFilesRep, bool* cancel);
    void OnOLENewFileAdded(const QString& fileName, int* key, bool* cancel);
    void OnOLESortChanged();
    void OnOLEDragError();
    void OnAfterDropAdd(int numberOfFilesAdded);
    // Places are pixels of the widget.
    void OnMouseDown(int button, int shift, double x, double y);
    void OnMouseMove(int button, int shift, double x, double y);
    void OnMouseUp(int button, int shift, double x, double y);
    void OnMouseEnter(int index);
    void OnMouseExit(int index);
    void OnClick(int index, const QImage& picture, const QString& fileName, int button);
    void OnDblClick(int index, const QImage& picture, const QString& fileName, int button);
    void OnBackgroundClick(int button);
    void OnBackgroundDblClick(int button);
    void OnKeyDown(int* keyCode, int shift);
    void OnKeyPress(int* keyAscii);
    void OnKeyUp(int* keyCode, int shift);
    // A sound button, 0 music or 1 comment, was clicked: what is to be heard? Without play the host plays for itself.
    void OnClickPlay(int index, QString* soundFileNameToPlay, int* button, int canal, bool* play, QString* alias);
    void OnClickPlayChangeDiapo(int index, int button);
    void OnClickStop(int index, int button, int canal);
    void OnClickText(int index);
    void OnSoundEnded(int canal);
    // Something is wrong with a sound that the sheet plays; text tells the user. OnSoundEnded follows unless the sound
    // plays on.
    void OnSoundTrouble(int canal, const QString& fileName, vorlane::ui::SoundTrouble trouble, const QString& text);
    void OnBeforeEdit(bool* cancel, const QString& oldFileNamme);
    void OnAfterEdit(const QString& newFileName, const QString& oldFileName, bool canceled);
    void OnRenameError(int errorType, const QString& newFileName, const QString& oldFileName, QString* errorMessage,
                       bool* cancelMessage);
    // An assistive program has pressed a slide, focused it or changed whether it is selected.
    void OnAccessibleAction(int index);
    // The info button is pressed: what does the balloon show? Without titre and texte there is none.
    void OnToolTipInfos(int index, const QString& fileName, QString* titre, QString* texte, int* icone);
    // Kept for hosts; nothing raises them.
    void OnBeforeZoom(int index, QImage* picture);
    void OnBeforeZoomEndLoad();
    void OnAfterZoom();
    void OnError(int number, const QString& description, const QString& source, int lastDllError,
                 const QString& valeur) const;

protected:
    void connectNotify(const QMetaMethod& signal) override;
    void disconnectNotify(const QMetaMethod& signal) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    // Runs an operation of the sheet; its failure raises OnError.
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
    void ConnectEvents();
    void ConnectScrolling();
    void ConnectPictures();
    void ConnectHand();
    void ConnectDrags();
    void ConnectSounds();
    void TellTrouble(const QString& alias, const QString& path, vorlane::SoundTrouble trouble);
    void ConnectEdit();
    void ConnectZoom();

    Vorlane& sheet_;
    mutable PendingError pending_;
    ScopedConnection feedBack_;  // while somebody listens to OnTraitementFeedBack
};

}  // namespace vorlane
