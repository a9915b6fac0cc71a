// Picture: an immutable, shared picture. Copying one copies a reference and never decodes. The pixels belong to the
// desktop that made the picture; the core knows the kind, an identity and the size.
//
// A default-constructed Picture is the empty picture: type 0, handle 0, size 0. Where an operation may give no
// picture at all it says so with std::optional.
#pragma once

#include <cstdint>
#include <memory>

namespace vorlane {

// What a desktop keeps of a picture.
class PictureData {
public:
    virtual ~PictureData() = default;
};

enum class PictureType : int16_t { None = 0, Bitmap = 1, Metafile = 2, Icon = 3, EnhancedMetafile = 4 };

class Picture {
public:
    Picture() = default;

    // A picture of that many logical pixels (1/96 inch).
    Picture(PictureType type, double pixelWidth, double pixelHeight, std::shared_ptr<const PictureData> data);

    // 0 none, 1 bitmap, 2 metafile, 3 icon, 4 enhanced metafile.
    int16_t Type() const;
    bool IsBitmap() const { return Type() == static_cast<int16_t>(PictureType::Bitmap); }
    // Not 0 exactly for a picture that is not empty; equal for copies, different for any two living pictures.
    uintptr_t Handle() const { return reinterpret_cast<uintptr_t>(body_.get()); }
    // Size in HiMetric.
    double Width() const;
    double Height() const;

    const std::shared_ptr<const PictureData>& Data() const;

    // The same picture, not the same pixels.
    bool operator==(const Picture& other) const { return body_ == other.body_; }

private:
    struct Body;
    std::shared_ptr<const Body> body_;
};

}  // namespace vorlane
