// DiapoLightWidget: one slide (eDiapoLight) as a widget. It holds no rule of the slide's: it hands properties, methods
// and events over in Qt's types.
//
// Names are the slide's own, events with "On" in front. An argument that a receiver may answer is a pointer; it is
// good until the signal returns, so such a signal wants a direct connection. Lengths are pixels. No accessor throws:
// what the slide refuses leaves it as it was and raises OnError.
#pragma once

#include "platform/dataobject.h"
#include "platform/failure.h"
#include "platform/qt/controlhost.h"
#include "widgets/enums.h"

#include <QByteArray>
#include <QColor>
#include <QFont>
#include <QImage>
#include <QPixmap>
#include <QString>

namespace vorlane {

class eDiapoLight;

class DiapoLightWidget : public ControlHost {
    Q_OBJECT
    Q_PROPERTY(bool AlwaysFullSize READ AlwaysFullSize WRITE SetAlwaysFullSize)
    Q_PROPERTY(bool AutoAdjust READ AutoAdjust WRITE SetAutoAdjust)
    Q_PROPERTY(bool AutoCornerResize READ AutoCornerResize WRITE SetAutoCornerResize)
    Q_PROPERTY(QColor BackColor READ BackColor WRITE SetBackColor)
    Q_PROPERTY(QColor BackColorSelected READ BackColorSelected WRITE SetBackColorSelected)
    Q_PROPERTY(QColor BorderColor READ BorderColor WRITE SetBorderColor)
    Q_PROPERTY(QColor BorderColorExt READ BorderColorExt WRITE SetBorderColorExt)
    Q_PROPERTY(bool BorderDouble READ BorderDouble WRITE SetBorderDouble)
    Q_PROPERTY(int BorderSize READ BorderSize WRITE SetBorderSize)
    Q_PROPERTY(vorlane::ui::BorderStyle BorderStyle READ BorderStyle WRITE SetBorderStyle)
    Q_PROPERTY(vorlane::ui::BorderStyle BorderStyleExt READ BorderStyleExt WRITE SetBorderStyleExt)
    Q_PROPERTY(QString CaptionBottom READ CaptionBottom WRITE SetCaptionBottom)
    Q_PROPERTY(int CaptionBottomNbLig READ CaptionBottomNbLig WRITE SetCaptionBottomNbLig)
    Q_PROPERTY(bool Enabled READ Enabled WRITE SetEnabled)
    Q_PROPERTY(QFont FontBottom READ FontBottom WRITE SetFontBottom)
    Q_PROPERTY(QFont FontImageName READ FontImageName WRITE SetFontImageName)
    Q_PROPERTY(QColor ForeColor READ ForeColor WRITE SetForeColor)
    Q_PROPERTY(int ImageMarge READ ImageMarge WRITE SetImageMarge)
    Q_PROPERTY(QPixmap MouseIcon READ MouseIcon WRITE SetMouseIcon)
    Q_PROPERTY(int MousePointer READ MousePointer WRITE SetMousePointer)
    Q_PROPERTY(bool NoResize READ NoResize WRITE SetNoResize)
    Q_PROPERTY(int OLEDragMode READ OLEDragMode WRITE SetOLEDragMode)
    Q_PROPERTY(int OLEDropMode READ OLEDropMode WRITE SetOLEDropMode)
    Q_PROPERTY(bool Selected READ Selected WRITE SetSelected)
    Q_PROPERTY(QColor ShadowColor READ ShadowColor WRITE SetShadowColor)
    Q_PROPERTY(int ShadowWidth READ ShadowWidth WRITE SetShadowWidth)
    Q_PROPERTY(bool ShowDiapoTools READ ShowDiapoTools WRITE SetShowDiapoTools)
    Q_PROPERTY(bool ShowFileName READ ShowFileName WRITE SetShowFileName)
    Q_PROPERTY(bool ShowInfo READ ShowInfo WRITE SetShowInfo)
    Q_PROPERTY(bool ShowJauge READ ShowJauge WRITE SetShowJauge)
    Q_PROPERTY(bool ShowShadow READ ShowShadow WRITE SetShowShadow)
    Q_PROPERTY(bool ShowZoom READ ShowZoom WRITE SetShowZoom)
    Q_PROPERTY(bool Thumbnail READ Thumbnail WRITE SetThumbnail)
    Q_PROPERTY(vorlane::ui::ThumbResolution ThumbnailResolution READ ThumbnailResolution WRITE SetThumbnailResolution)
    Q_PROPERTY(int ThumbnailSizeHigh READ ThumbnailSizeHigh WRITE SetThumbnailSizeHigh)
    Q_PROPERTY(int ThumbnailSizeNormal READ ThumbnailSizeNormal WRITE SetThumbnailSizeNormal)
    Q_PROPERTY(QString ToolTipBtComment READ ToolTipBtComment WRITE SetToolTipBtComment)
    Q_PROPERTY(QString ToolTipBtPlay READ ToolTipBtPlay WRITE SetToolTipBtPlay)
    Q_PROPERTY(QString ToolTipBtText READ ToolTipBtText WRITE SetToolTipBtText)
    Q_PROPERTY(int Value READ Value WRITE SetValue)

public:
    // On the program's shared desktop.
    explicit DiapoLightWidget(QWidget* parent = nullptr);
    explicit DiapoLightWidget(QtDesktop& desktop, QWidget* parent = nullptr);
    ~DiapoLightWidget() override;

    // The slide itself.
    eDiapoLight& slide() const { return slide_; }

    QSize sizeHint() const override;

    // --- Persisted properties ---
    bool AlwaysFullSize() const;
    void SetAlwaysFullSize(bool on);
    bool AutoAdjust() const;
    void SetAutoAdjust(bool on);
    bool AutoCornerResize() const;
    void SetAutoCornerResize(bool on);
    QColor BackColor() const;
    void SetBackColor(const QColor& color);
    QColor BackColorSelected() const;
    void SetBackColorSelected(const QColor& color);
    QColor BorderColor() const;
    void SetBorderColor(const QColor& color);
    QColor BorderColorExt() const;
    void SetBorderColorExt(const QColor& color);
    bool BorderDouble() const;
    void SetBorderDouble(bool on);
    int BorderSize() const;
    void SetBorderSize(int value);
    ui::BorderStyle BorderStyle() const;
    void SetBorderStyle(ui::BorderStyle style);
    ui::BorderStyle BorderStyleExt() const;
    void SetBorderStyleExt(ui::BorderStyle style);
    QString CaptionBottom() const;
    void SetCaptionBottom(const QString& text);
    int CaptionBottomNbLig() const;
    void SetCaptionBottomNbLig(int value);
    bool Enabled() const;
    void SetEnabled(bool on);
    QFont FontBottom() const;
    void SetFontBottom(const QFont& font);
    QFont FontImageName() const;
    void SetFontImageName(const QFont& font);
    QColor ForeColor() const;
    void SetForeColor(const QColor& color);
    int ImageMarge() const;
    void SetImageMarge(int value);
    QPixmap MouseIcon() const;
    void SetMouseIcon(const QPixmap& icon);
    int MousePointer() const;
    void SetMousePointer(int value);
    bool NoResize() const;
    void SetNoResize(bool on);
    int OLEDragMode() const;
    void SetOLEDragMode(int value);
    int OLEDropMode() const;
    void SetOLEDropMode(int value);
    bool Selected() const;
    void SetSelected(bool on);
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
    bool Thumbnail() const;
    void SetThumbnail(bool on);
    ui::ThumbResolution ThumbnailResolution() const;
    void SetThumbnailResolution(ui::ThumbResolution style);
    int ThumbnailSizeHigh() const;
    void SetThumbnailSizeHigh(int value);
    int ThumbnailSizeNormal() const;
    void SetThumbnailSizeNormal(int value);
    QString ToolTipBtComment() const;
    void SetToolTipBtComment(const QString& text);
    QString ToolTipBtPlay() const;
    void SetToolTipBtPlay(const QString& text);
    QString ToolTipBtText() const;
    void SetToolTipBtText(const QString& text);
    int Value() const;
    void SetValue(int value);

    // The persisted properties as a text (UTF-8, JSON), without those that have their defaults; and back. Whether the
    // text could be read: otherwise nothing changes and OnError is raised. What it leaves out gets its default.
    // As a saved slide it stays undrawn until its Refresh while NoResize is true.
    QByteArray SaveProperties() const;
    bool RestoreProperties(const QByteArray& text);

    // --- State ---
    // The picture at the widget's density; null for none. Setting a null one clears the slide.
    QImage Picture() const;
    void SetPicture(const QImage& picture);
    QString ImageFullPath() const;
    void SetImageFullPath(const QString& path);
    QString ImageName() const;
    double ImageWidth() const;
    double ImageHeight() const;
    QRect ImageNameRect() const;
    int Key() const;
    void SetKey(int key);
    void SetBackColorSelectedChange(const QColor& color);
    bool SelectedTmp() const;
    void SetSelectedTmp(bool selected);
    bool HaveSoundMusic() const;
    void SetHaveSoundMusic(bool have);
    bool HaveSoundComment() const;
    void SetHaveSoundComment(bool have);
    bool HaveTexte() const;
    void SetHaveTexte(bool have);
    bool HaveInvalidMusic() const;
    void SetHaveInvalidMusic(bool invalid);
    bool HaveInvalidComm() const;
    void SetHaveInvalidComm(bool invalid);
    void SetOnGetThumb(bool on);
    QPixmap BtPlayPicture() const;
    void SetBtPlayPicture(const QPixmap& picture);
    QPixmap BtCommentPicture() const;
    void SetBtCommentPicture(const QPixmap& picture);
    QPixmap BtTextPicture() const;
    void SetBtTextPicture(const QPixmap& picture);
    bool BtPlayVisible() const;
    void SetBtPlayVisible(bool visible);
    bool BtCommentVisible() const;
    void SetBtCommentVisible(bool visible);
    bool BtTextVisible() const;
    void SetBtTextVisible(bool visible);
    double Col() const;
    void SetCol(double col);
    double Lig() const;
    void SetLig(double lig);
    QString DataSort() const;
    void SetDataSort(const QString& sortData);

    // A reduced copy whose longest side is resolution pixels; -1 takes the slide's own thumbnail size.
    QImage Thumb(const QImage& picture, int resolution = -1);

public Q_SLOTS:
    // Shows a file; a thumb that is not null replaces its decoding.
    void PictureByString(const QString& path, const QImage& thumb = {});
    void Refresh();
    void PlaceButtons();
    // Lets the user drag the picture: OnOLEStartDrag gives the data. Returns when that has ended.
    void OLEDrag();

Q_SIGNALS:
    void PropertyChanged(const QString& key);

    void OnClick(int button);
    void OnDblClick(int button);
    void OnInvalidPicture(const QString& nomImage);
    void OnKeyDown(int* keyCode, int shift);
    void OnKeyUp(int* keyCode, int shift);
    void OnKeyPress(int* keyAscii);
    void OnMouseDown(int button, int shift, double x, double y);
    void OnMouseMove(int button, int shift, double x, double y);
    void OnMouseUp(int button, int shift, double x, double y);
    void OnOLECompleteDrag(int* effect);
    void OnOLEDragDrop(vorlane::DataObject* dragged, int* effect, int button, int shift, double x, double y);
    void OnOLEDragOver(vorlane::DataObject* dragged, int* effect, int button, int shift, double x, double y, int state);
    void OnOLEGiveFeedback(int* effect, bool* defaultCursors);
    void OnOLESetData(vorlane::DataObject* dragged, int* dataFormat);
    void OnOLEStartDrag(vorlane::DataObject* dragged, int* allowedEffects);
    void OnZoomMouseDown(int button, int shift, double x, double y);
    void OnInfoMouseDown(int button, int shift, double x, double y);
    void OnInfoMouseMove(int button, int shift, double x, double y);
    void OnInfoMouseUp(int button, int shift, double x, double y);
    void OnClickPlay(bool fromComment);
    void OnClickStop(bool fromComment);
    void OnClickText();
    // A null image leaves the slide without that picture.
    void OnSetPicture(vorlane::ui::PictureIndex pictureIndex, QImage* newPicture, bool invalidSound);
    void OnGetKey(int* key);
    void OnSetKey(int key);
    void OnGetWindowsPos(QRect* rect, QString* texte);
    void OnError(int number, const QString& description, const QString& source, int lastDllError,
                 const QString& valeur) const;

private:
    // Runs an operation of the slide; its failure raises OnError.
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
    void ConnectInput();
    void ConnectDrags();
    void ConnectRequests();

    eDiapoLight& slide_;
    mutable PendingError pending_;
};

}  // namespace vorlane
