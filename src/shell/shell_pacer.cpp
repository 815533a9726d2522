#include "shell/shell_pacer.h"

#include "platform/platform.h"

PacerState Pacer;

std::int32_t Tick() { return static_cast<std::int32_t>(Plat_TickCount() & 32767u); }

void Set_FrameRate(std::int32_t rate) {
  Pacer.PaceRate = rate;
  Pacer.PacePeriod = 1000 / rate;
  Pacer.PaceDebt = 0;
  Pacer.PaceLast = Tick();
}

int Pacer_Due() {
  const std::int32_t now = Tick();
  std::int32_t elapsed = now - Pacer.PaceLast;
  if (elapsed < 0) elapsed += 32768;  // the 15-bit clock wrapped
  Pacer.PaceDebt += elapsed;
  if (Pacer.PaceDebt < 0) {  // early: wait out the rest of the period
    Wait_Ms(-Pacer.PaceDebt);
    Pacer.PaceDebt = -Pacer.PacePeriod;
    Pacer.PaceLast = Tick();
    return 1;
  }
  Pacer.PaceDebt -= Pacer.PacePeriod;
  Pacer.PaceLast = now;
  return Pacer.PaceDebt < 0 ? 1 : 0;
}

void Wait_Ms(std::int32_t ms) { Plat_WaitMs(ms); }
