// Writing pictures.
#include "pictures/pic_output.h"

#include <cstdio>

#include "assets/asset_image.h"
#include "writers/writer_image.h"

namespace pic {

static_assert(kMaxSide == IMAGE_MAX_SIDE, "pictures must fit the game's image reader");

bool Is_Power_Of_Two(int n) { return n > 0 && (n & (n - 1)) == 0; }

namespace {

std::uint8_t Byte(float v) { return static_cast<std::uint8_t>(Clamp01(v) * 255.0f + 0.5f); }

bool Save(Output& out, const std::string& name, const Canvas& c, int components) {
  if (!Is_Power_Of_Two(c.w) || !Is_Power_Of_Two(c.h) || c.w > kMaxSide || c.h > kMaxSide) {
    std::fprintf(stderr, "assetgen: %s: %d x %d is not a power-of-two size within %d\n", name.c_str(), c.w, c.h,
                 kMaxSide);
    out.ok = false;
    return false;
  }
  writers::ImageFile img;
  img.width = c.w;
  img.height = c.h;
  img.components = components;
  img.pixels.reserve(static_cast<std::size_t>(c.w) * c.h * components);
  for (const Rgba& p : c.px) {
    if (components == 4) {
      img.pixels.push_back(Byte(p.r));
      img.pixels.push_back(Byte(p.g));
      img.pixels.push_back(Byte(p.b));
      img.pixels.push_back(Byte(p.a));
    } else {
      img.pixels.push_back(Byte(p.r * p.a));
      img.pixels.push_back(Byte(p.g * p.a));
      img.pixels.push_back(Byte(p.b * p.a));
    }
  }
  std::string path = (out.dir / name).string();
  if (!writers::Write_Image(path.c_str(), img)) {
    std::fprintf(stderr, "assetgen: cannot write %s\n", path.c_str());
    out.ok = false;
    return false;
  }
  ++out.written;
  return true;
}

}  // namespace

bool Save_Rgba(Output& out, const std::string& name, const Canvas& c) { return Save(out, name, c, 4); }
bool Save_Rgb(Output& out, const std::string& name, const Canvas& c) { return Save(out, name, c, 3); }

}  // namespace pic
