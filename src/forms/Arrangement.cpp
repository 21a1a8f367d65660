#include "forms/Arrangement.h"

#include <algorithm>

#include "forms/Control.h"
#include "forms/Form.h"
#include "forms/Pixels.h"

namespace orx {
namespace {

int PinnedTop(const Form& form, const FrameRoom& frames) {
  int top = form.ClientSize().Height + frames.Growth();
  for (const Control* const control : form.Children())
    if (control->Pinned() && control->Visible()) top = std::min(top, frames.PlaceOf(*control).Top - kScrollMargin);
  return top;
}

int BodyBottom(const Form& form, const FrameRoom& frames) {
  int bottom = 0;
  for (const Control* const control : form.Children())
    if (!control->Pinned() && control->Visible())
      bottom = std::max(bottom, frames.PlaceOf(*control).Bottom() + kScrollMargin);
  return bottom;
}

}  // namespace

int ScrollRange::Clamped(int position) const {
  return std::clamp(position, 0, std::max(0, Whole - Seen));
}

int ScrollRange::Revealing(int low, int high, int position, int margin) const {
  if (low < margin || high - low > Seen - 2 * margin) return position + low - margin;
  return high > Seen - margin ? position + high - Seen + margin : position;
}

Point Arrangement::Revealing(const Rect& place, Point position) const {
  if (place.Left >= 0 && place.Top >= 0 && place.Right() <= Across.Seen && place.Bottom() <= Down.Seen) return position;
  const int margin = TwipsToPixels(kScrollMargin, Scale);
  return Clamped({Across.Revealing(place.Left, place.Right(), position.X, margin),
                  Down.Revealing(place.Top, place.Bottom(), position.Y, margin)});
}

Arrangement Arrange(const ArrangementInput& input) {
  const auto pixels = [&](int twips) { return TwipsToPixels(twips, input.Scale); };
  const Size client = TwipsToPixels(input.Client, input.Scale);
  const Size shown = TwipsToPixels(input.Shown, input.Scale);
  Arrangement result;
  result.Scale = input.Scale;
  result.Missing = {client.Width - shown.Width, client.Height - shown.Height};
  const bool scrollsDown = result.Missing.Height > 0;
  if (scrollsDown) result.ExtraWidth = std::clamp(pixels(input.SpareWidth), 0, input.ScrollBars.Width);
  result.Window = {shown.Width + result.ExtraWidth, shown.Height};
  result.Pane = result.Window;
  result.Body = {client.Width, shown.Height};
  if (scrollsDown) {
    result.Pane.Height = std::max(0, pixels(input.PinnedTop) - result.Missing.Height);
    result.Body.Height = pixels(std::max(input.PinnedTop, input.BodyBottom));
  }
  const int seenWidth = result.Pane.Width - (scrollsDown ? input.ScrollBars.Width : 0);
  const bool scrollsAcross = client.Width > seenWidth;
  result.Across = {client.Width, std::min(seenWidth, client.Width)};
  result.Down = {result.Body.Height, result.Body.Height};
  if (scrollsDown) result.Down.Seen = std::max(0, result.Pane.Height - (scrollsAcross ? input.ScrollBars.Height : 0));
  return result;
}

Arrangement Arrange(const Form& form, Size scrollBars) {
  const Desktop& desktop = form.OwnerDesktop();
  const Size shown = form.ShownClientSize();
  const ScreenMetrics screen = desktop.Metrics(form.Border());
  const FrameRoom frames(form);
  Arrangement result = Arrange({.Client = {form.ClientSize().Width, form.ClientSize().Height + frames.Growth()},
                                .Shown = shown,
                                .SpareWidth = screen.WorkArea.Width - screen.Frame.Width - shown.Width,
                                .PinnedTop = PinnedTop(form, frames),
                                .BodyBottom = BodyBottom(form, frames),
                                .Scale = desktop.Scale(),
                                .ScrollBars = scrollBars});
  result.Frames = frames;
  result.IsMirrored = form.RightToLeft();
  return result;
}

bool StandsPinned(const Control& control) {
  return control.Pinned() && !control.Parent().ContainerControl();
}

Rect PixelPlace(const Control& control, const Arrangement& arrangement) {
  Rect place = TwipsToPixels(arrangement.Frames.PlaceOf(control), arrangement.Scale);
  int width = arrangement.Body.Width;
  if (const Control* const outer = control.Parent().ContainerControl())
    width = TwipsToPixels(outer->Place(), arrangement.Scale).Width;
  if (StandsPinned(control)) {
    place.Left = std::max(0, place.Left - arrangement.Missing.Width);
    place.Top -= arrangement.Missing.Height;
    width = arrangement.Window.Width;
  }
  if (arrangement.IsMirrored) place.Left = width - place.Right();
  return place;
}

}  // namespace orx
