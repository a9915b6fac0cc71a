// The editor's window in front of a user, over a folder of pictures and settings of its own.
#pragma once

#include "editor/editorwindow.h"
#include "editor/emptypage.h"
#include "editor/statuspanel.h"
#include "platform/qt/qtdesktop.h"
#include "sheet/vorlane.h"
#include "tests/widgets/thumbnailsupport.h"
#include "widgets/vorlanewidget.h"

#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QSettings>
#include <QTest>

namespace vorlane::editor {

class WindowFixture : public testing::Test {
protected:
    WindowFixture() {
        Make();
        loads_ = QtDesktop::Of(*qApp).pictures.BeforeLoad.connect([this](const std::string& path, bool& broken) {
            if (!broken && path.starts_with(Folder().toStdString())) ++readOnThisThread_;
        });
    }
    ~WindowFixture() override { loads_.disconnect(); }

    // As large as the user left it without a size.
    void Make(QSize size = {900, 600}) {
        ThumbnailOptions options;
        options.cacheFolder.clear();
        options.decoder = stage_.Decoder();
        window_ = std::make_unique<EditorWindow>(settings_, std::move(options));
        QObject::connect(&window_->sheet(), &VorlaneWidget::OnError,
                         [](int, const QString& what) { ADD_FAILURE() << what.toStdString(); });
        QObject::connect(&window_->sheet(), &VorlaneWidget::OnInvalidPicture,
                         [this](int, const QString& name) { invalid_.push_back(QFileInfo(name).fileName()); });
        window_->setPictureOpener([this](const QString& path) {
            opened_.push_back(QFileInfo(path).fileName());
            return true;
        });
        if (size.isValid()) window_->resize(size);
        window_->show();
    }
    QString Folder() { return QFileInfo(pictures_.Path("x")).path(); }
    bool Settle() {
        QCoreApplication::processEvents();
        return test::WaitFor([this] { return window_->isSettled(); });
    }
    bool Open(const QString& folder) {
        window_->openFolder(folder);
        return Settle();
    }
    QString Status() { return window_->status().text(); }
    EmptyPage& Empty() { return *window_->findChild<EmptyPage*>(); }
    eDiapoLight& Slide(int index) { return *window_->sheet().sheet().Diapo.Item(index); }
    QAction& Action(const QString& text) {
        for (QAction* action : window_->findChildren<QAction*>()) {
            if (QString(action->text()).remove('&') == text) return *action;
        }
        throw std::out_of_range(text.toStdString());
    }
    // What the list holds, by the names' first letters.
    QString Letters() const {
        QString letters;
        for (int i = 0; i < window_->count(); ++i)
            letters += QFileInfo(window_->sheet().ImageFullPath(i)).fileName().left(1);
        return letters;
    }
    QString SelectedLetters() const {
        QString letters;
        for (const int i : window_->sheet().SelectedTableau()) letters += Letters().at(i);
        return letters;
    }
    // Pictures of those names with ".jpg" behind.
    bool OpenPictures(const QString& letters) {
        for (const QChar letter : letters) pictures_.WritePicture(QString(letter) + ".jpg");
        return Open(Folder());
    }
    void Press(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&window_->sheet(), static_cast<Qt::Key>(key), modifiers);
        QCoreApplication::processEvents();
    }
    void Drop(const QList<QUrl>& urls, QPoint place = {50, 50}) {
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(window_.get(), &enter);
        accepted_ = enter.isAccepted();
        QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        if (accepted_) QCoreApplication::sendEvent(window_.get(), &drop);
    }

    test::PictureFolder pictures_;
    test::StageDecoder stage_;
    QTemporaryDir config_;
    QSettings settings_{config_.filePath("settings.ini"), QSettings::IniFormat};
    std::unique_ptr<EditorWindow> window_;
    Connection loads_;
    int readOnThisThread_ = 0;  // pictures of the folder
    QStringList invalid_;
    QStringList opened_;
    bool accepted_ = false;
};

}  // namespace vorlane::editor
