#include "elements/notices.h"

namespace veneerer {

int ChangeNotices::subscribe(Listener listener) {
  subscriptions_.push_back({++lastNumber_, std::move(listener)});
  return lastNumber_;
}

void ChangeNotices::unsubscribe(int subscription) {
  std::erase_if(subscriptions_, [=](const Subscription& s) { return s.number == subscription; });
}

void ChangeNotices::send(const Change& change) const {
  // By index, because a listener may subscribe another one while it runs.
  for (std::size_t i = 0; i < subscriptions_.size(); ++i) subscriptions_[i].listener(change);
}

void ChangeNotices::send(const Refusal& refusal) const {
  if (refusalListener_ && quiet_ == 0) refusalListener_(refusal);
}

}  // namespace veneerer
