#include "elements/switchboard.h"

#include <QVarLengthArray>
#include <algorithm>

#include "elements/element.h"
#include "elements/window.h"

namespace veneerer {

namespace {

// Behind the numbers of the properties.
constexpr int kClick = kPropertyCount;
constexpr int kDoubleClick = kPropertyCount + 1;

// Gathered ahead of the first call, because a listener may attach and detach others while it runs.
template <class Listener>
using Called = QVarLengthArray<std::shared_ptr<const Listener>, 8>;

template <class Listener>
void gather(const std::vector<std::shared_ptr<const Listener>>& listeners, Called<Listener>& called) {
  for (const auto& listener : listeners) called.append(listener);
}

template <class Listener, class What>
void call(Called<Listener>& called, What& what) {
  std::ranges::sort(called, {}, [](const auto& listener) { return listener->number; });
  for (const auto& listener : called)
    if (!listener->attachment.expired()) listener->act(what);
}

}  // namespace

template <class Act>
Attachment Switchboard::attach(Listeners<Act>& listeners, Act act) {
  std::erase_if(listeners, [](const auto& listener) { return listener->attachment.expired(); });
  const Attachment attachment = std::make_shared<char>();
  listeners.push_back(
      std::make_shared<const Listener<Act>>(Listener<Act>{++lastNumber_, attachment, std::move(act)}));
  return attachment;
}

Attachment Switchboard::attach(const void* subject, int event, Handler handler) {
  return attach(handlers_[{subject, event}], std::move(handler));
}

Attachment Switchboard::onChange(const Element& element, Property property, Handler handler) {
  return attach(&element, static_cast<int>(property), std::move(handler));
}

Attachment Switchboard::onChange(const Family& family, Property property, Handler handler) {
  return attach(&family, static_cast<int>(property), std::move(handler));
}

Attachment Switchboard::onClick(const Element& element, Handler handler) {
  return attach(&element, kClick, std::move(handler));
}

Attachment Switchboard::onClick(const Family& family, Handler handler) {
  return attach(&family, kClick, std::move(handler));
}

Attachment Switchboard::onClickWithin(const Window& window, Handler handler) {
  return attach(&window, kClick, std::move(handler));
}

Attachment Switchboard::onDoubleClick(const Element& element, Handler handler) {
  return attach(&element, kDoubleClick, std::move(handler));
}

Attachment Switchboard::watch(const Element& element, View view) {
  return attach(views_[&element], std::move(view));
}

Attachment Switchboard::watch(View view) {
  return attach(viewsOfAll_, std::move(view));
}

void Switchboard::handle(std::initializer_list<Topic> topics, Element& element) {
  Called<Listener<Handler>> called;
  for (const Topic& topic : topics)
    if (const auto found = handlers_.constFind(topic); found != handlers_.constEnd()) gather(*found, called);
  call(called, element);
}

void Switchboard::record(const Change& change) const {
  if (recorder_) recorder_(change);
}

void Switchboard::tell(const Change& change) {
  const int property = static_cast<int>(change.property);
  if (viewsOnly_ == 0)
    handle({{&change.element, property}, {change.element.family(), property}}, change.element);
  Called<Listener<View>> called;
  gather(viewsOfAll_, called);
  if (const auto found = views_.constFind(&change.element); found != views_.constEnd())
    gather(*found, called);
  call(called, change);
}

void Switchboard::tell(const Refusal& refusal) const {
  if (refusalListener_ && quiet_ == 0) refusalListener_(refusal);
}

void Switchboard::click(Element& element) {
  // A window is its own: it must not hear of a click on itself twice.
  const Window* window = element.family() ? &element.window() : nullptr;
  handle({{&element, kClick}, {element.family(), kClick}, {window, kClick}}, element);
}

void Switchboard::doubleClick(Element& element) {
  handle({{&element, kDoubleClick}}, element);
}

}  // namespace veneerer
