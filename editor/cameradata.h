// What a camera has written into a picture file (EXIF).
#pragma once

#include <QDateTime>
#include <QString>

namespace vorlane::editor {

// Empty, 0 or not valid where the file tells nothing.
struct CameraData {
    QString camera;
    double exposure = 0;     // seconds
    double aperture = 0;     // the number behind f/
    double focalLength = 0;  // millimetres
    int sensitivity = 0;     // ISO
    QDateTime taken{};       // by the camera's clock
};

// Of a JPEG file; nothing of any other.
CameraData CameraDataOf(const QString& path);

}  // namespace vorlane::editor
