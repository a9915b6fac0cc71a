#include "platform/qt/qtdialogs.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>

namespace vorlane {

namespace {

QString Text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QMessageBox::Icon IconOf(int32_t style) {
    switch (style & 0x70) {
        case 16:
            return QMessageBox::Critical;
        case 48:
            return QMessageBox::Warning;
        case 64:
            return QMessageBox::Information;
        default:
            return QMessageBox::NoIcon;
    }
}

}  // namespace

// The window that the box belongs to may go while it is open, and takes the box along.
void QtDialogs::MsgBox(std::string_view text, int32_t style, std::string_view caption) {
    const QPointer<QMessageBox> box(
        new QMessageBox(IconOf(style), Text(caption), Text(text), QMessageBox::Ok, QApplication::activeWindow()));
    box->setTextFormat(Qt::PlainText);
    box->exec();
    delete box;
}

}  // namespace vorlane
