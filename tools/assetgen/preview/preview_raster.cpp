// Preview canvases: figures drawn by the figures' rasteriser, and PNG output.
#include "preview/preview_raster.h"

#include <png.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "figures/fig_raster.h"

namespace preview {
using fig::Vec3;

void Canvas_Init(Canvas& c, int width, int height, std::uint32_t bg) {
  c.width = width;
  c.height = height;
  c.rgb.assign(static_cast<std::size_t>(width) * height * 3, 0);
  for (std::size_t i = 0; i < c.rgb.size(); i += 3) {
    c.rgb[i] = (bg >> 16) & 255;
    c.rgb[i + 1] = (bg >> 8) & 255;
    c.rgb[i + 2] = bg & 255;
  }
  c.depth.assign(static_cast<std::size_t>(width) * height, 1e30f);
}

void Canvas_Blit(Canvas& dst, const Canvas& src, int x0, int y0) {
  for (int y = 0; y < src.height; ++y)
    for (int x = 0; x < src.width; ++x) {
      int dx = x0 + x, dy = y0 + y;
      if (dx < 0 || dy < 0 || dx >= dst.width || dy >= dst.height) continue;
      for (int k = 0; k < 3; ++k)
        dst.rgb[(static_cast<std::size_t>(dy) * dst.width + dx) * 3 + k] =
            src.rgb[(static_cast<std::size_t>(y) * src.width + x) * 3 + k];
    }
}

void Draw_Figure(Canvas& c, const fig::Model& m, const mot::PartMatrix pose[22], const int anchor[5], Vec3 offset,
                 const Skin& skin, const View& view) {
  fig::RasterTarget target;
  fig::Raster_Clear(target, c.width, c.height);
  fig::RasterView v;
  v.turn = fig::RotY(view.yaw);
  v.look = Vec3{0, view.look_y, 0} - offset;  // the whole-body offset moves the figure, not the camera
  v.distance = view.distance;
  v.focal = view.focal * c.height;
  fig::RasterLight light;
  light.smooth = false;
  if (view.lit) {
    light.toward = fig::Normalise(Vec3{-0.4f, 0.7f, -0.6f});
    for (int k = 0; k < 3; ++k) light.ambient[k] = light.key[k] = 0.55f;
  }
  fig::RasterFigure figure;
  figure.model = &m;
  figure.pose = pose;
  figure.anchor = anchor;
  figure.skin = skin.images;
  figure.flat = &skin.flat;
  fig::Raster_Figure(target, figure, v, light);
  for (std::size_t i = 0; i < c.depth.size(); ++i) {
    if (target.rgba[i * 4 + 3] <= 0 || target.depth[i] >= c.depth[i]) continue;
    c.depth[i] = target.depth[i];
    for (int k = 0; k < 3; ++k) c.rgb[i * 3 + k] = static_cast<std::uint8_t>(std::lround(target.rgba[i * 4 + k] * 255.0f));
  }
}

bool Write_Png(const char* path, const Canvas& c) {
  FILE* fp = std::fopen(path, "wb");
  if (!fp) {
    std::fprintf(stderr, "%s: cannot write\n", path);
    return false;
  }
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  if (setjmp(png_jmpbuf(png))) {
    png_destroy_write_struct(&png, &info);
    std::fclose(fp);
    return false;
  }
  png_init_io(png, fp);
  png_set_IHDR(png, info, c.width, c.height, 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
               PNG_FILTER_TYPE_DEFAULT);
  png_write_info(png, info);
  for (int y = 0; y < c.height; ++y)
    png_write_row(png, const_cast<png_bytep>(&c.rgb[static_cast<std::size_t>(y) * c.width * 3]));
  png_write_end(png, nullptr);
  png_destroy_write_struct(&png, &info);
  std::fclose(fp);
  return true;
}

}  // namespace preview
