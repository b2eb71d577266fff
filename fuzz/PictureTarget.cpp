// The bytes of a picture through the applications' own reading, which refuses hostile sizes.
#include "Pictures/PictureReading.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace componentlibrary; // NOLINT(google-build-using-namespace)
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const Picture picture = ReadPicture(bytes);
    const QSize pixels = picture.image.size();
    const bool hasImage = !picture.image.isNull();
    if (hasImage != (picture.fault == PictureFault::None) || qint64{pixels.width()} * pixels.height() > kMostPixels) {
        std::abort();
    }
    const QSize small = FitPicture(picture.image, 64).size();
    if (hasImage && (small.isEmpty() || small.width() > 64 || small.height() > 64)) {
        std::abort();
    }
    return 0;
}
