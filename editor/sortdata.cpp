#include "editor/sortdata.h"

#include <QFileInfo>

namespace vorlane::editor {

namespace {

constexpr qsizetype kDigits = 12;

// yyyyMMddHHmmss; the moments before the year 1 and behind 9999 count as unknown.
QString DateText(const QDateTime& moment) {
    const QDate day = moment.date();
    const QTime time = moment.time();
    if (!moment.isValid() || day.year() < 1 || day.year() > 9999) return QString(14, QLatin1Char('0'));
    const qint64 number = (day.year() * 100LL + day.month()) * 100 + day.day();
    const qint64 seconds = (time.hour() * 100LL + time.minute()) * 100 + time.second();
    return QString::number(number * 1000000 + seconds).rightJustified(14, QLatin1Char('0'));
}

QString Extension(const QString& name) {
    const qsizetype point = name.lastIndexOf(QLatin1Char('.'));
    return point > 0 ? name.mid(point + 1).toLower() : QString();
}

}  // namespace

QString Folded(const QString& text) {
    QString folded;
    for (const QChar unit : text.normalized(QString::NormalizationForm_KD).toLower()) {
        const bool accent = unit > QChar(127) && unit.category() == QChar::Mark_NonSpacing;
        if (!accent) folded += unit;
    }
    return folded;
}

QString SortName(const QString& fileName) {
    QString sorted;
    QString digits;
    const auto flush = [&] {
        if (!digits.isEmpty()) sorted += digits.rightJustified(kDigits, QLatin1Char('0'));
        digits.clear();
    };
    for (const QChar unit : Folded(fileName)) {
        const bool digit = unit >= QLatin1Char('0') && unit <= QLatin1Char('9');
        if (!digit) flush();
        (digit ? digits : sorted) += unit;
    }
    flush();
    return sorted;
}

FileFacts FactsOf(const QFileInfo& file) {
    return {file.fileName(), file.lastModified(), file.birthTime(), file.size()};
}

QString SortData(const FileFacts& facts, const QString& sortName) {
    const QString length = QString::number(facts.length).rightJustified(10, QLatin1Char('0'));
    QString data = sortName;
    for (const QString& criterion :
         {DateText(facts.modified), DateText(facts.created), length, Extension(facts.name)}) {
        data += kSepSortArg + criterion + sortName;
    }
    return data;
}

}  // namespace vorlane::editor
