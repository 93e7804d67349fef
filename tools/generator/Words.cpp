// Word lists. None of the words alone is a keyword or a built-in command.
#include "Words.h"

namespace generator {

const Words verbs = {"Update", "Find",  "Count", "Spawn", "Check",  "Apply",   "Build", "Measure", "Reset",
                     "Choose", "Merge", "Shift", "Blend", "Launch", "Collect", "Award", "Settle",  "Scan",
                     "Weigh",  "Sort",  "Trade", "Heal",  "Aim",    "Steer",   "Mix",   "Prepare"};
const Words qualifiers = {"Active", "Nearest", "Hidden", "Broken", "Large", "Local",
                          "Next",   "Idle",    "Outer",  "Inner",  "Fast",  "Slow",
                          "Frozen", "Rich",    "Lost",   "Lucky",  "Late",  "Ready"};
const Words nouns = {"Ship",  "Rock",  "Cargo", "Engine", "Planet", "Market", "Pilot",  "Shield", "Laser",
                     "Route", "Score", "Level", "Enemy",  "Bonus",  "Camera", "Sprite", "Tile",   "Map",
                     "Door",  "Quest", "Item",  "Spell",  "Wave",   "Beacon", "Crew",   "Dock",   "Mine"};
const Words things = {"Ship",   "Rock",   "Bullet", "Particle", "Station", "Enemy",   "Trader",
                      "Beacon", "Button", "Tile",   "Spark",    "Door",    "Missile", "Crate",
                      "Guard",  "Wave",   "Probe",  "Drone",    "Relay",   "Convoy"};
const Words intNames = {"amount", "total", "level", "row",   "column", "lives", "damage", "cost",
                        "stage",  "best",  "owner", "state", "limit",  "slot",  "worth",  "range"};
const Words floatNames = {"speed", "angle",  "mass",  "ratio", "drift", "fuel",
                          "heat",  "radius", "delta", "pitch", "pull",  "gain"};
const Words textNames = {"title", "caption", "message", "label", "answer", "key", "reply", "phrase"};
const Words fieldNames = {"x#",    "y#",    "vx#",   "vy#",    "health", "frame",   "score",   "timer",
                          "armor", "name$", "kind$", "power#", "target", "weight#", "shields", "reach"};
const Words phrases = {"ready",        "out of fuel", "docked",      "level up",     "nothing found",
                       "low shields",  "new contact", "all clear",   "wave begins",  "cargo full",
                       "route locked", "trade done",  "signal lost", "engine check", "entering orbit"};
const Words remarks = {"the nearest one wins",
                       "the old value stays when nothing changed",
                       "guard against values out of range",
                       "every object takes its turn",
                       "scaled to the size of the map",
                       "settled by a second pass",
                       "this is only reached on the hard levels",
                       "rounded down on purpose",
                       "the caller has checked the bounds",
                       "drift grows with speed"};
const Words sections = {"Movement", "Economy", "Combat",   "Screens", "Scoring",
                        "Map",      "Crew",    "Messages", "Weather", "Missions"};

std::string cat(std::initializer_list<std::string> parts) {
    std::string text;
    for (const std::string& part : parts) text += part;
    return text;
}

}
