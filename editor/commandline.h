// The editor's command line: vorlane-editor [--screenshot FILE] [--size WxH] [FOLDER|SHOW]
#pragma once

#include <optional>

#include <QSize>
#include <QString>
#include <QStringList>

namespace vorlane::editor {

struct CommandLine {
    QString path;        // of a folder or a show; empty: none
    QString screenshot;  // empty: none
    QSize size;          // not valid: as the user left the window
};

struct CommandLineAnswer {
    std::optional<CommandLine> commands;  // nothing: print text and end
    QString text{};
    bool wrong = false;  // the text tells a mistake, not help
};

// arguments: the program's name first.
CommandLineAnswer ParseCommandLine(const QStringList& arguments);

}  // namespace vorlane::editor
