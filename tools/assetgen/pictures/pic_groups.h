// The picture groups the generator writes, one function per group, each in its own file.
#pragma once
#include "pictures/pic_output.h"

namespace pic {

void Pictures_FightHud(Output& out);       // pic_hud.cpp: bars, gauges, plates, digits
void Pictures_FightMessages(Output& out);  // pic_messages.cpp: round calls, KO, banners
void Pictures_Effects(Output& out);        // pic_effects.cpp: flip-books, cards, glow ring
void Pictures_Stages(Output& out);         // pic_stages.cpp: floors, lights, backdrops
void Pictures_Supers(Output& out);         // pic_supers.cpp: super-move backdrops
void Pictures_Portraits(Output& out);      // pic_portraits.cpp: select, versus, icons, faces
void Pictures_Select(Output& out);         // pic_select.cpp: the select screen's frame
void Pictures_Versus(Output& out);         // pic_versus.cpp
void Pictures_Title(Output& out);          // pic_title.cpp: title and opening
void Pictures_Ranking(Output& out);        // pic_menus.cpp
void Pictures_Options(Output& out);        // pic_menus.cpp
void Pictures_Ending(Output& out);         // pic_ending.cpp

}  // namespace pic
