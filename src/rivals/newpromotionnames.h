#pragma once

#include <array>

namespace grapplemont {

/// A promotion that may yet open.
struct NewPromotionName {
  const char* Name;
  const char* Initials;
};

inline constexpr std::array<NewPromotionName, 40> kNewPromotionNames = {{
    {"Total Championship Wrestling", "TCW"},
    {"Rocky Mountain Wrestling", "RMW"},
    {"Championship Contest Wrestling", "CCW"},
    {"World Level Wrestling", "WLW"},
    {"Atlanta Gold Combat", "AGC"},
    {"Coastal Zone Combat", "CZC"},
    {"New York City Wrestling", "NCYW"},
    {"Old School Dojo", "OSD"},
    {"Overdose Wrestling", "ODW"},
    {"City Limits Fighting", "CLF"},
    {"Death Valley Combat", "DVC"},
    {"Mystery Wrestling Club", "MWC"},
    {"PileDriver Wrestling", "PDW"},
    {"Charisma Wrestling League", "CWL"},
    {"Supreme Wrestling Federation", "SWF"},
    {"Ultimate Combat Ring", "UCR"},
    {"Rings Of Fire", "ROF"},
    {"Golden Canvas Grappling", "GCG"},
    {"Unbeatable Wrestling Xtreme", "UWX"},
    {"Vampire Zone Fighting", "VZF"},
    {"Angel Athletic Association", "AAA"},
    {"Crash Course Combat", "CCC"},
    {"Brooklyn Wrestling Federation", "BWF"},
    {"Empire Combat Academy", "ECA"},
    {"No Name Wrestling", "NNW"},
    {"21st Century Wrestling", "21CW"},
    {"NWA: East Coast", "NWA:EC"},
    {"5 Star Supreme Wrestling", "5SSW"},
    {"XXX Wrestling", "3XW"},
    {"Pride Glory Honor Wrestling", "PGHW"},
    {"Hollyweird Grappling Company", "HGC"},
    {"Wrestling Is Life", "WIL"},
    {"New World Championship Wrestling", "NWCW"},
    {"New Extreme Championship Wrestling", "NECW"},
    {"Smokey Mountain Wrestling Rebirth", "SMW:R"},
    {"NWA: Canadian Invasion", "NWA:CI"},
    {"NWA: Old School Rulz", "NWAOSR"},
    {"Extreme Championship Wrestling 2", "ECW2"},
    {"Danger And Violence Extreme", "DAVE"},
    {"League Against The Pemberly Family", "LATPF"},
}};

}  // namespace grapplemont
