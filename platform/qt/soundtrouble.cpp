#include "platform/qt/soundtrouble.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace vorlane {

namespace {

const char* Sentence(SoundTrouble trouble) {
    switch (trouble) {
        case SoundTrouble::Missing:
            return QT_TRANSLATE_NOOP("vorlane::SoundTrouble", "Le son « %1 » est introuvable");
        case SoundTrouble::Unplayable:
            return QT_TRANSLATE_NOOP("vorlane::SoundTrouble", "Le fichier « %1 » est abîmé ou n'est pas un son");
        case SoundTrouble::Gone:
            return QT_TRANSLATE_NOOP("vorlane::SoundTrouble", "Le fichier « %1 » a disparu pendant la lecture");
        case SoundTrouble::NoDevice:
            return QT_TRANSLATE_NOOP("vorlane::SoundTrouble", "Aucun périphérique audio : « %1 » ne s'entend pas");
        case SoundTrouble::Unreadable:
            return QT_TRANSLATE_NOOP("vorlane::SoundTrouble", "Le son « %1 » est illisible");
    }
    return "";
}

}  // namespace

QString SoundTroubleText(SoundTrouble trouble, const QString& path) {
    return QCoreApplication::translate("vorlane::SoundTrouble", Sentence(trouble)).arg(QFileInfo(path).fileName());
}

}  // namespace vorlane
