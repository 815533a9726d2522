// The fight display: the flat picture layer over a fight.
//
// Bars, clock, name plates, round marks and the top line are drawn behind the fighters by
// DrawHudBase; everything that comes and goes (power gauges, combo counter, banners, the
// round call, FIGHT, the end-of-round messages, the challenger notice) in front of them by
// DrawHudMessages. Both read the fight's records and the fight picture set only; the display
// keeps no state of its own. The counters it runs (the displayed life and power, combo_show,
// the banners' frames, challenger_phase) belong to the fight state and move once per drawn
// frame.
#pragma once

// Once per drawn fight frame, before the display: the life bars drain toward what is left
// after the delay, the power gauge fills and empties toward its target.
void DrainGauges();

// What DrawHudBase changes: a bar never drains more than its life (damage is cut to life).
void RunHudBase();

// Behind the fighters: life-bar frames and bars, the round clock, name plates, round-win marks
// and the top line. Leaves the sprite layer at -100.
void DrawHudBase();

// In front of the fighters: combo counter and banners, the key-change notice, the power
// gauges, then the one message of the moment. Draws at layer 511 and leaves the layer at -100
// on every way out. Also counts combo_show, the banners and the challenger notice down, and
// ends a challenger interruption when its notice has run out.
void DrawHudMessages();
// Everything DrawHudMessages counts, with nothing drawn: for a fight frame stepped as drawn
// without its picture.
void RunHudMessages();

// The record-time message for time-ranking place `rank_index` + 1 (0..4): the words, the
// place and the winning time in seconds and hundredths.
void DrawRecordMessage(int rank_index);
