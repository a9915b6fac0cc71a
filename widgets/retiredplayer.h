// How hosts end their own players of Qt Multimedia.
#pragma once

#include "platform/qt/retiredplayer.h"
