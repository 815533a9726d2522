// Image files into the staging buffer.
#include <cstdio>

#include "assets/asset_image.h"
#include "assets/asset_report.h"
#include "platform/platform.h"

namespace {

// The pixels of the image being loaded; written only by Load_Image, read by the upload.
std::uint8_t Staging[IMAGE_STAGING_BYTES];

constexpr int kHeaderBytes = 6;

int le16(const std::uint8_t* p) { return static_cast<std::int16_t>(p[0] | (p[1] << 8)); }

// Four components are red, green, blue, alpha; any other value means red, green, blue.
int bytes_per_pixel(int components) { return components == 4 ? 4 : 3; }

// Reads the pixels of an image whose header is already read; false with the reason recorded.
bool read_pixels(std::FILE* file, const char* name, int width, int height, int components) {
  if (width < 1 || height < 1) {
    Load_Refused(name, "damaged: %d x %d pixels", width, height);
    return false;
  }
  if (width > IMAGE_MAX_SIDE || height > IMAGE_MAX_SIDE) {
    Load_Refused(name, "%d x %d pixels, larger than the %d x %d a picture may have", width,
                 height, IMAGE_MAX_SIDE, IMAGE_MAX_SIDE);
    return false;
  }
  const std::size_t size = static_cast<std::size_t>(width) * height * bytes_per_pixel(components);
  static_assert(static_cast<std::size_t>(IMAGE_MAX_SIDE) * IMAGE_MAX_SIDE * 4 <= sizeof Staging);
  const std::size_t got = std::fread(Staging, 1, size, file);
  if (got != size) {
    Load_Refused(name, "too short: %zu of the %zu pixel bytes its %d x %d header needs", got, size,
                 width, height);
    return false;
  }
  return true;
}

}  // namespace

const std::uint8_t* Image_Pixels() { return Staging; }

bool Load_Image(const char* name, int& width, int& height, int& components) {
  std::FILE* file = Plat_OpenFile(name, "rb");
  if (file == nullptr) {
    Load_NotOpened(name);
    std::fprintf(stderr, "Loading Error %s\n", name);
    return false;
  }
  std::uint8_t header[kHeaderBytes];
  const std::size_t got = std::fread(header, 1, kHeaderBytes, file);
  if (got != kHeaderBytes) {
    std::fclose(file);
    Load_Refused(name, "too short: %zu bytes, less than the %d-byte header", got, kHeaderBytes);
    return false;
  }
  width = le16(header);
  height = le16(header + 2);
  components = le16(header + 4);
  const bool ok = read_pixels(file, name, width, height, components);
  std::fclose(file);
  return ok;
}
