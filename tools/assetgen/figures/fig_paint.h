// Painting a fighter's textures: cloth with folds and trims, skin, hair, and a face with eyes,
// brows and mouth, plus the two alternate faces (hurt, shouting) that replace it.
#pragma once
#include <vector>

#include "figures/fig_figure.h"
#include "figures/fig_types.h"

namespace fig {

enum class Expression { Calm, Hurt, Shout };

// The row's textures in model texture order (named as the model lists them), then its hurt and
// shouting faces (named as the character table lists them; a row whose two names are the same
// gets the hurt face under that name twice).
void Fig_PaintRow(int row, const Model& model, const TextureLayout& layout, std::vector<NamedImage>& textures,
                  std::vector<NamedImage>& faces);

// One face picture of a character, with the hair of its first or second colouring where the
// hair covers the head. The face is large: portraits show it full screen.
constexpr int kFaceSize = 256;
void Fig_PaintFace(int character, Expression expression, Image& out, int colouring = 0);

}  // namespace fig
