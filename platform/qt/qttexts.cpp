#include "platform/qt/qttexts.h"

#include <QCoreApplication>

namespace vorlane {

std::optional<std::string> QtTexts::Text(std::string_view number) const {
    const std::optional<std::string> french = french_.Text(number);
    if (!french) return std::nullopt;
    return QCoreApplication::translate("vorlane::Texts", french->c_str()).toStdString();
}

}  // namespace vorlane
