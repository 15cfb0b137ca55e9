#pragma once

#include <string>
#include <vector>

#include "records/world.h"

// What is whispered. Every rumour is true; only the one who tells it is not sure.

namespace grapplemont {

enum class Whisper {
  ContractEnds,
  Handshake,
  Unhappy,
  NearBankruptcy,
  InDebt,
  Saving,
  Spending,
  NoOwner,
  AboutToRise,
  AboutToFall,
  Back,
  OldBones,
  LongReign,
  NetworkCold,
  ShortDeal,
  Turn,
  Bonfire,
  FreeStar,
  HeldDown,
  NoChampion,
  Slipping,
  kCount
};

struct Rumour {
  Whisper Is;
  std::string Words;
};

/// All that can be heard, the same words all month long while they are true; no more than three of
/// a kind.
std::vector<Rumour> RumoursOf(const World& world);

/// How it is told: {who}, {house}, {n}, {what} and {other} stand for what is known.
struct WhisperLines {
  Whisper Is;
  const char* Lines[3];
};
const WhisperLines& LinesOf(Whisper whisper);

}  // namespace grapplemont
