#pragma once

#include <fstream>
#include <map>
#include <sstream>
#include <string>

#include "app/firststep.h"

// The case that the window is in, property by property, and what each handler does to it, as
// tests/cases.txt tells it.

// The properties' values by their names: "Option1 shown" is "shown" or "hidden", "steps" a number.
using State = std::map<std::string, std::string>;

inline State StateOf(const app::firststep& w) {
  State state;
  state["steps"] = std::to_string(w.module.StepCount);
  state["timer"] = w.Timer1.Enabled ? "on" : "off";
  state["interval"] = std::to_string(w.Timer1.Interval);
  const bool standard = w.eikona.ScaleWidth() == 20 && w.eikona.ScaleHeight() == -20;
  state["scale"] = standard ? "standard" : "other";
  for (const toolkit::MenuItem* item : w.periptoseis.items) {
    state[item->Name + " checked"] = item->Checked ? "checked" : "unchecked";
  }
  for (const toolkit::OptionButton* option : w.options.members) {
    state[option->Name + " selected"] = option->Value ? "selected" : "unselected";
  }
  for (const toolkit::Control* control : w.controls) {
    state[control->Name + " shown"] = control->Visible ? "shown" : "hidden";
  }
  return state;
}

// One line for each property that is not as it shall be.
inline std::string Differences(const State& got, const State& want) {
  std::ostringstream differences;
  for (const auto& [property, value] : want) {
    const auto found = got.find(property);
    const std::string is = found == got.end() ? "missing" : found->second;
    if (is != value) differences << "\n  " << property << ": " << is << " instead of " << value;
  }
  return differences.str();
}

struct Handler {
  std::string name, way;
  int value = 0;                      // that a scroll bar is set to
  State effect, condition, effectIf;  // where the condition holds, another effect

  void Run(app::firststep& w) const {
    const auto click = [&](auto&... controls) {
      (..., (controls.Name == name ? controls.UserClick() : void()));
    };
    click(w.Option1, w.Option2, w.Option3, w.Command1, w.VIMA);
    click(w.XANAPISO, w.DYNAMEISDIAFORES, w.GUESSFORCE, w.campyles, w.STAMATHMA, w.KSEKINA);
    click(w.TERMATISMOS);
    const auto scroll = [&](auto&... bars) {
      (..., (bars.Name == name ? bars.UserScroll(value) : void()));
    };
    scroll(w.platosvalue, w.syxnotikamp, w.epitaxyno, w.arxikives, w.vimatimi);
    if (way == "tick") w.events.Deliver(w.Timer1.Tick);
  }

  State After(State state) const {
    const bool special = !condition.empty() && Differences(state, condition).empty();
    for (const auto& [property, changed] : special ? effectIf : effect) {
      std::string& now = state[property];
      now = changed == "+1" ? std::to_string(std::stoi(now) + 1) : changed;
    }
    return state;
  }
};

struct Cases {
  State opening;
  std::map<std::string, Handler> handlers;

  Cases() {
    std::ifstream file(FIRSTSTEP_CASES);
    State* block = &opening;
    for (std::string line; std::getline(file, line);) {
      if (line.starts_with("  ")) Set(*block, line.substr(2));
      if (line.starts_with("handler ")) block = &Open(line);
    }
  }

 private:
  // "handler NAME click", "handler NAME scroll to 9", and perhaps " when GUESSFORCE checked".
  State& Open(const std::string& line) {
    std::istringstream words(line.substr(line.find(' ')));
    std::string name, way, word;
    words >> name >> way;
    Handler& handler = handlers[name];
    handler.name = name;
    handler.way = way;
    while (words >> word && word != "when") {
      if (word == "to") words >> handler.value;
    }
    if (word != "when") return handler.effect;
    std::getline(words >> std::ws, word);
    Set(handler.condition, word);
    return handler.effectIf;
  }
  static void Set(State& state, const std::string& line) {
    const std::size_t end = line.rfind(' ');
    const std::string name = line.substr(0, end), value = line.substr(end + 1);
    std::string kind;
    if (value == "shown" || value == "hidden") kind = " shown";
    if (value == "checked" || value == "unchecked") kind = " checked";
    if (value == "selected" || value == "unselected") kind = " selected";
    state[name + kind] = value;
  }
};

inline const Cases kCases;
