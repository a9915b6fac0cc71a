// Sort data: what the editor writes in front of a file's name in the sheet's list, so that the list can be ordered
// without touching the disk again. Five criteria, joined by SepSortArg: the name, the day and time of the last change,
// those of the creation, the length, the extension. Each but the first ends in the name, so that equals order by it.
#pragma once

#include <QDateTime>
#include <QString>

class QFileInfo;

namespace vorlane::editor {

// The character that joins criteria.
constexpr QChar kSepSortArg{11};

// Without a difference between cases or accents.
QString Folded(const QString& text);

// A text that orders as people do: without a difference between cases or accents, and "image 9" before "image 10".
QString SortName(const QString& fileName);

struct FileFacts {
    QString name;  // without folder
    QDateTime modified{};
    QDateTime created{};  // not valid where nobody knows
    qint64 length = 0;
};

FileFacts FactsOf(const QFileInfo& file);

QString SortData(const FileFacts& facts, const QString& sortName);

}  // namespace vorlane::editor
