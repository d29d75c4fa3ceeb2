#include "toolkit/web/desktop.h"

#include <chrono>
#include <cmath>
#include <utility>

#include "toolkit/bar_press.h"
#include "toolkit/tick_grid.h"
#include "toolkit/web/mirrors.h"
#include "toolkit/web/page.h"

namespace toolkit::web {
namespace {

constexpr int kWindow = 0;  // the window's element, which is the first

Clock::time_point Now() {
  const std::chrono::duration<double, std::milli> now(page::Now());
  return Clock::time_point(std::chrono::duration_cast<Clock::duration>(now));
}

class WebDesktop : public Desktop {
 public:
  WebDesktop(Size seen, double ratio) : seen_(seen) { scale_.ratio = ratio; }

  float ScreenWidth() const override { return kTwipsPerPixel * Told(view_.screen.width); }
  float ScreenHeight() const override { return kTwipsPerPixel * Told(view_.screen.height); }
  void ShowMessage(const std::string& text) override { page::ShowMessage(text.c_str()); }
  void End() override { page::End(); }

  void Create(Window& window) override {
    window_ = &window;
    view_ = ViewOf(PageFor(seen_, window.Surroundings), 0.0, window.Surroundings);
    MakeElement(window, "Window");
    page::Tell(kWindow, "text", window.Caption);
    mirrors_.push_back(std::make_unique<Mirror>(window, [this] { Show(); }));
    Zoom(view_.zoom);
    MirrorAll(window, scale_, mirrors_);
    for (Timer* timer : window.timers) timers_.emplace_back(timer, TickGrid());
  }
  void Destroy(Window&) override {
    mirrors_.clear();
    timers_.clear();
  }

  // Another part of the page is seen from now on; everything becomes as much larger or smaller, and
  // is shown as it is.
  void Cover(Size seen, double ratio) {
    scale_.ratio = ratio;
    const Size page = PageFor(seen, window_->Surroundings);
    Zoom(ZoomFor(page, 0.0, Extents(window_->controls), view_));
  }

  // Lets the timers tick whose time has come. True while there are ticks to wait for. The next one
  // is aimed at after the handler, which may have taken the time of several.
  bool Frame() {
    bool waiting = false;
    for (auto& [timer, grid] : timers_) {
      grid.Follow(*timer, Now());
      if (grid.Due() && Now() >= *grid.Due()) timer->Due();
      grid.Follow(*timer, Now());
      grid.Take(Now());
      waiting = waiting || grid.Due();
    }
    return waiting;
  }

 private:
  static float Told(double pixels) { return static_cast<float>(pixels); }

  void Zoom(double zoom) {
    scale_.twips = TwipScale(zoom);
    // Rounded down: rounded up, it could make the window a pixel too high for the page.
    scale_.menuHeight = static_cast<int>(kMenuHeight * zoom);
    page::TellZoom(zoom, scale_.menuHeight, kBarArrow * zoom, kBarThumb * zoom);
    for (const auto& mirror : mirrors_) mirror->Refresh();
  }

  void Show() {
    const Size needed = Extents(window_->controls);
    const double zoom = scale_.twips.Zoom();
    page::Place(kWindow, 0.0, 0.0, std::floor(needed.width * zoom),
                std::floor((needed.height + kMenuHeight) * zoom), scale_.Letters(kMenuPoints));
    page::Tell(kWindow, "hidden", !window_->Visible);
  }

  Size seen_;
  View view_{1.0, {1024.0, 768.0}, {}};
  Scale scale_;
  Window* window_ = nullptr;
  std::vector<std::unique_ptr<Mirror>> mirrors_;
  std::vector<std::pair<Timer*, TickGrid>> timers_;
};

std::unique_ptr<WebDesktop> desktop;

}  // namespace

Desktop& OpenPage(Size seen, double ratio) {
  desktop = std::make_unique<WebDesktop>(seen, ratio);
  return *desktop;
}

TO_PAGE("Cover") void Cover(double width, double height, double ratio) {
  desktop->Cover({width, height}, ratio);
}

TO_PAGE("Frame") bool Frame() {
  return desktop->Frame();
}

}  // namespace toolkit::web
