// SoundButtons: the buttons of the slides on which something is heard. They play it and stop it, one slide at a time.
#pragma once

#include <array>
#include <functional>
#include <set>

#include <QObject>
#include <QString>

namespace vorlane {
class VorlaneWidget;
struct SlideContent;
}  // namespace vorlane

namespace vorlane::editor {

class Show;

class SoundButtons : public QObject {
    Q_OBJECT

public:
    // The file that is heard on the slide of that key, its music or its comment; empty for none.
    using Finder = std::function<QString(int key, bool comment)>;

    // sheet and show outlive this.
    SoundButtons(VorlaneWidget& sheet, Show& show, Finder finder, QObject* parent = nullptr);

    // What is heard on the slides has changed, or whether its files are there.
    void refresh();

Q_SIGNALS:
    // Something is wrong with a sound; for the user.
    void said(const QString& text);

private:
    struct Playing {
        int key = -1;
        QString file;
    };

    int KeyOf(int slide) const;
    void Describe(int slide, SlideContent& content);
    bool NoteMissing(int key, bool comment, bool missing);
    void ShowButton(int slide, bool comment);
    QString Play(int slide, bool comment);
    void StopChanged();

    VorlaneWidget& sheet_;
    Finder finder_;
    std::array<Playing, 2> playing_;        // what was played last: music, comment
    std::array<std::set<int>, 2> missing_;  // keys of the slides whose file was not there when they were last shown
};

}  // namespace vorlane::editor
