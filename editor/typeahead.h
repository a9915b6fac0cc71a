// Typing a name's beginning to come to it. What is typed within a moment belongs together.
#pragma once

#include <functional>

#include <QElapsedTimer>
#include <QString>

namespace vorlane::editor {

class TypeAhead {
public:
    // pause: milliseconds after which typing begins anew.
    explicit TypeAhead(int pause) : pause_(pause) {}

    // Whether a beginning is being typed, so that a space belongs to it.
    bool isTyping() const { return !typed_.isEmpty() && !sinceLast_.hasExpired(pause_); }
    // All that was typed so far, text included.
    QString type(const QString& text);

private:
    int pause_;
    QString typed_;
    QElapsedTimer sinceLast_;
};

// The item whose name begins with what was typed, without a difference between cases or accents, -1 for none: the
// first from current on, round the end of the list. A first letter, and the same one again, leads on from current.
int FindName(const QString& typed, int current, int count, const std::function<QString(int)>& nameAt);

}  // namespace vorlane::editor
