// What a widget's properties must be: the persisted properties of its control, each of which can be read and written.
#pragma once

#include "platform/propertybag.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

#include <QColor>
#include <QFont>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QPixmap>
#include <QSignalSpy>
#include <QWidget>

namespace vorlane::test {

// The names of the properties that the widget's own class declares.
inline std::set<std::string> OwnProperties(const QWidget& widget) {
    std::set<std::string> names;
    const QMetaObject& meta = *widget.metaObject();
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) names.insert(meta.property(i).name());
    return names;
}

template <class Table>
std::set<std::string> Keys(const Table& table) {
    std::set<std::string> keys;
    for (const auto& property : table) keys.insert(property.Key);
    return keys;
}

// Another value of the same kind.
inline QVariant Another(const QMetaProperty& property, const QVariant& value) {
    if (property.isEnumType()) {
        const QMetaEnum names = property.enumerator();
        return names.value(0) == value.toInt() ? names.value(1) : names.value(0);
    }
    switch (value.typeId()) {
        case QMetaType::Bool:
            return !value.toBool();
        case QMetaType::Int:
            return value.toInt() + 1;
        case QMetaType::Double:
            return value.toDouble() + 1;
        case QMetaType::QString:
            return QString::fromUtf8("\xC3\xA9t\xC3\xA9");
        case QMetaType::QColor:
            return QColor(12, 34, 56);
        case QMetaType::QFont:
            return QFont("DejaVu Serif", 17, QFont::Bold, true);
        default: {
            QPixmap pixmap(5, 4);
            pixmap.fill(Qt::red);
            return pixmap;
        }
    }
}

inline bool SameValue(const QVariant& a, const QVariant& b) {
    if (a.typeId() == QMetaType::QPixmap) return a.value<QPixmap>().toImage() == b.value<QPixmap>().toImage();
    if (a.typeId() == QMetaType::QFont) {
        const auto first = a.value<QFont>();
        const auto second = b.value<QFont>();
        return first.family() == second.family() && first.pointSizeF() == second.pointSizeF() &&
               first.bold() == second.bold() && first.italic() == second.italic();
    }
    if (a.canConvert<int>() && b.canConvert<int>()) return a.toInt() == b.toInt();
    return a == b;
}

// Writes another value through Qt and looks for it on both sides.
template <class Widget, class Control, class Table>
void ExpectWritable(Widget& widget, const Control& control, const Table& table) {
    for (const auto& persisted : table) {
        const QMetaObject& meta = *widget.metaObject();
        const QMetaProperty property = meta.property(meta.indexOfProperty(persisted.Key.c_str()));
        const BagValue before = persisted.Value(control);
        const QVariant wanted = Another(property, property.read(&widget));
        QSignalSpy changed(&widget, &Widget::PropertyChanged);
        QSignalSpy failed(&widget, &Widget::OnError);
        EXPECT_TRUE(property.write(&widget, wanted)) << persisted.Key;
        EXPECT_TRUE(SameValue(property.read(&widget), wanted)) << persisted.Key;
        EXPECT_NE(persisted.Value(control), before) << persisted.Key;
        EXPECT_EQ(failed.count(), 0) << persisted.Key;
        bool told = false;
        for (const auto& arguments : changed) told = told || arguments.at(0).toString().toStdString() == persisted.Key;
        EXPECT_TRUE(told) << persisted.Key;
    }
}

}  // namespace vorlane::test
