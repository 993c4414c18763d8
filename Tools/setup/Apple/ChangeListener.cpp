#include "ChangeListener.h"

#include <deque>

namespace setup {
namespace {

/// Passes on the changes of one kind of setting of one model.
class Subscription : public client::Listener {
 public:
  Subscription(const client::Model &model, const client::SettingKind &kind,
               ChangeListener &listener)
      : model_(model), kind_(kind), listener_(listener) {}

  void Changed(int32_t channel, int32_t index) noexcept override {
    Q_EMIT listener_.Announced({&kind_, &model_, channel}, index);
  }

 private:
  const client::Model &model_;
  const client::SettingKind &kind_;
  ChangeListener &listener_;
};

}  // namespace

// The system delivers announcements on the main thread's run loop, which Qt runs.
struct ChangeListener::Machinery {
  std::deque<Subscription> subscriptions;
};

ChangeListener::ChangeListener() : machinery_(std::make_unique<Machinery>()) {}

ChangeListener::~ChangeListener() = default;

void ChangeListener::Start() {
  for (const client::Model *model : client::ServedModels()) {
    for (const client::SettingKind &kind : client::SettingKinds()) {
      kind.functions.listen(model->id,
                            &machinery_->subscriptions.emplace_back(*model, kind, *this));
    }
  }
  Q_EMIT BusReached(true);
}

}  // namespace setup
