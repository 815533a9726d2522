// Finished pictures become image files in the data set: checked sizes, 8-bit channels, RGB or
// RGBA, written through the image writer.
#pragma once
#include <filesystem>
#include <string>

#include "pictures/pic_canvas.h"

namespace pic {

// The largest side the game's image reader takes.
constexpr int kMaxSide = 1024;

// Where the pictures go, and whether every one so far was written.
struct Output {
  std::filesystem::path dir;
  int written = 0;
  bool ok = true;
};

// Writes four components. Refuses (with a message naming the file) sizes that are not powers
// of two or exceed the reader's limit.
bool Save_Rgba(Output& out, const std::string& name, const Canvas& c);
// Writes three components: the canvas laid over black.
bool Save_Rgb(Output& out, const std::string& name, const Canvas& c);

bool Is_Power_Of_Two(int n);

}  // namespace pic
