// The sample show: about sixty pictures and a few sounds, the same bytes on every run, for trying the editor without
// pictures of one's own. Some files are bad on purpose.
#pragma once

#include <functional>
#include <vector>

#include <QByteArray>
#include <QString>

namespace samples {

struct File {
    QString Name;
    qint64 Work;  // to spread the files over threads: pixels to paint, 0 for none
    std::function<QByteArray()> Content;
};

// All files of the show.
std::vector<File> Show();

// Writes files into a folder, which is made if need be, each whole or not at all. Fails with std::runtime_error.
void Write(const std::vector<File>& files, const QString& folder);

// A sum over the generator's sources: another one paints other bytes.
QString Version();

// Brings a folder up to the files of a version; a stamp beside it, "<folder>.stamp", tells which one it holds. Files
// that only an older version had are removed, others left alone. Returns whether there was anything to do. Fails as
// Write does.
bool Refresh(const std::vector<File>& files, const QString& version, const QString& folder);

}  // namespace samples
