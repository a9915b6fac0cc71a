#include "platform/qt/soundtrouble.h"

#include <QFileInfo>

namespace vorlane {

namespace {

QString Reason(SoundTrouble trouble) {
    switch (trouble) {
        case SoundTrouble::Missing:
            return QStringLiteral("le fichier est introuvable");
        case SoundTrouble::Unplayable:
            return QStringLiteral("le fichier est abîmé ou n'est pas un son");
        case SoundTrouble::Gone:
            return QStringLiteral("le fichier a disparu pendant la lecture");
        case SoundTrouble::NoDevice:
            return QStringLiteral("aucun périphérique audio n'est disponible");
    }
    return {};
}

}  // namespace

QString SoundTroubleText(SoundTrouble trouble, const QString& path) {
    return QStringLiteral("%1 : %2.").arg(QFileInfo(path).fileName(), Reason(trouble));
}

}  // namespace vorlane
