#include "window/hints.h"

#include <utility>

namespace window {
namespace {

constexpr std::pair<std::string_view, std::string_view> kHints[] = {
    {"Option1", "Explanation of friction"},
    {"Option2", "Time evolution: watch the body move"},
    {"Option3", "The velocity and the accelerations at fifteen places of the track"},
    {"platosvalue", "Amplitude: how high the track's crests are"},
    {"Label1", "Amplitude: how high the track's crests are"},
    {"syxnotikamp", "Frequency: degrees of phase for each unit; the label shows a tenth of them"},
    {"Label2", "Frequency: degrees of phase for each unit, divided by ten"},
    {"epitaxyno",
     "Tangential acceleration: how quickly the speed grows; below 0 the body slows down"},
    {"Label3", "Tangential acceleration: how quickly the speed grows; below 0 the body slows down"},
    {"arxikives", "Initial speed: the speed at the left end of the track"},
    {"Label4", "Initial speed: the speed at the left end of the track"},
    {"Command1", "Starts a run from the left end of the track, over the last one"},
    {"VIMA", "Stops the run and moves the body by one time step"},
    {"vimatimi", "Time steps for each unit of time: more of them make each step shorter"},
    {"Label5", "Time step: how far the time goes on with each step of the run"},
    {"XANAPISO", "Brings the scroll bars of the track back"},
    {"periptoseis", "Pictures to click on: the radius of curvature, and guessing a force"},
    {"DYNAMEISDIAFORES", "Shows the circles of curvature; click on the track for more"},
    {"GUESSFORCE", "Press on the track, hold SHIFT and pull a force: it is judged"},
    {"campyles", "Shows the choice between the time evolution and the factors of acceleration"},
    {"STAMATHMA", "Stops the run"},
    {"KSEKINA", "Goes on with the run"},
    {"TERMATISMOS", "Ends the program"},
};

}  // namespace

std::string HintOf(std::string_view name) {
  for (const auto& [control, hint] : kHints) {
    if (control == name) return std::string(hint);
  }
  return {};
}

}  // namespace window
