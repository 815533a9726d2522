// The pictures generator: every picture file the game names, group by group.
#include <cstdio>

#include "assetgen.h"
#include "pictures/pic_groups.h"
#include "pictures/pic_text.h"

namespace gen {

bool Generate_Pictures(const Context& ctx) {
  if (!pic::Text_Open()) return false;
  pic::Output out;
  out.dir = ctx.out;
  void (*const groups[])(pic::Output&) = {
      pic::Pictures_FightHud, pic::Pictures_FightMessages, pic::Pictures_Effects,
      pic::Pictures_Stages, pic::Pictures_Portraits, pic::Pictures_Supers,
      pic::Pictures_Select, pic::Pictures_Versus, pic::Pictures_Title,
      pic::Pictures_Ranking, pic::Pictures_Options, pic::Pictures_Ending,
  };
  for (auto group : groups) {
    group(out);
    if (!out.ok) break;
  }
  pic::Text_Close();
  if (out.ok) std::printf("assetgen: %d pictures\n", out.written);
  return out.ok;
}

}  // namespace gen
