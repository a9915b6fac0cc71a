// The window with the time line under its sheet, its slides in the user's own order.
#pragma once

#include "editor/navigator.h"
#include "editor/show.h"
#include "editor/strip.h"
#include "editor/stripmenu.h"
#include "editor/stripsounds.h"
#include "tests/editor/windowfixture.h"

#include <QtEndian>

namespace vorlane::editor {

class StripFixture : public WindowFixture {
protected:
    StripFixture() { window_->slides().setOrder({SortBy::Hand, false}); }

    // A silent wave file.
    QString Sound(const QString& name, int seconds) {
        constexpr quint32 kRate = 100;  // bytes a second
        const quint32 length = kRate * static_cast<quint32>(seconds);
        QByteArray wave("RIFF\0\0\0\0WAVEfmt \x10\0\0\0\1\0\1\0\0\0\0\0\0\0\0\0\1\0\x8\0data\0\0\0\0", 44);
        qToLittleEndian(kRate, wave.data() + 28);
        qToLittleEndian(length, wave.data() + 40);
        return pictures_.Write(name, wave + QByteArray(static_cast<int>(length), '\x80'));
    }
    QAction& Beginning(const QString& text) {
        for (QAction* action : window_->findChildren<QAction*>()) {
            if (QString(action->text()).remove('&').startsWith(text)) return *action;
        }
        throw std::out_of_range(text.toStdString());
    }
    Strip& TheStrip() { return window_->strip(); }
    StripSounds& Sounds() { return window_->sounds(); }
    // The letters of the slides with sounds of a kind, as the strip has them, each with its sound's name.
    QString Told(SoundKind kind) {
        QString told;
        TimeLineSounds sounds = kind == SoundKind::Music ? TheStrip().Musiques() : TheStrip().Comments();
        for (int i = 1; i <= sounds.Count(); ++i) {
            const TimeLineSound sound = *sounds.ItemFromPos(i);
            const int item = window_->sheet().GetListIndexFromItemData(sound.DiapoKey);
            told += (told.isEmpty() ? "" : " ") + Letters().mid(item, 1) + ":" + QFileInfo(sound.Nom).baseName();
        }
        return told;
    }
    QString Musics() { return Told(SoundKind::Music); }
    void Undo() { window_->slides().undo(); }
    int MiddleOf(int item) const {
        const QRectF slide = window_->sheet().DiapoRect(item);
        return static_cast<int>(slide.center().x());
    }
};

}  // namespace vorlane::editor
