#include "render/render_state.h"

#include <GL/gl.h>

#include "platform/platform.h"

void Swap_Buffers() {
  Plat_SwapBuffers();
  glFlush();
}

void Clear_Screen(std::uint8_t r, std::uint8_t g, std::uint8_t b) {
  glClearColor(r / 255.0f, g / 255.0f, b / 255.0f, 1.0f);
  glClear(GL_COLOR_BUFFER_BIT);
}

void Clear_Depth() { glClear(GL_DEPTH_BUFFER_BIT); }

void Blend_Normal() { glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA); }
void Blend_Glow() { glBlendFunc(GL_SRC_ALPHA, GL_SRC_ALPHA); }

bool Replace_On() {
  GLfloat colour[4];
  glGetFloatv(GL_CURRENT_COLOR, colour);
  if (colour[0] != 1.0f || colour[1] != 1.0f || colour[2] != 1.0f || colour[3] != 1.0f)
    return false;
  glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_REPLACE);
  return true;
}

void Replace_Off(bool was_on) {
  if (was_on) glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_MODULATE);
}

void Set_DrawMode(int code) {
  if ((code & 1) == 0) Blend_Normal();
}
