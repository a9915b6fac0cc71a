// What a widget's saved properties are as a text: see platform/bagtext.h. A picture is a PNG of its logical pixels as a
// data address ("data:image/png;base64,..."), so that the text needs no other file.
#pragma once

#include "platform/propertybag.h"

#include <QByteArray>

namespace vorlane {

QByteArray SavedText(const PropertyBag& bag);
// Fails with InvalidFormat() on any other text. A picture that can't be decoded is left out.
PropertyBag FromSavedText(const QByteArray& text);

}  // namespace vorlane
