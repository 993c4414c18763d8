#include "SetupWindow.h"

#include <QAction>
#include <QDropEvent>
#include <QEvent>
#include <QHBoxLayout>
#include <QMenu>
#include <QMimeData>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <algorithm>

#include "CheckWords.h"
#include "DetailsDialog.h"
#include "VersionsDialog.h"
#include "Words.h"

namespace setup {
namespace {

constexpr int kMargin = 24;
constexpr int kPlaybackWidth = 232;
constexpr int kRecordingWidth = 340;
constexpr QSize kSize{1160, 700};
constexpr QSize kSizeWithoutRouting{760, 700};
constexpr QSize kSmallest{1020, 640};
constexpr QSize kSmallestWithoutRouting{700, 560};

bool HasRouting(const SetupState &state) {
  return !state.SettingsOfKind("input").empty() || !state.SettingsOfKind("output").empty();
}

std::optional<Direction> DirectionOf(const client::Setting &setting) {
  if (setting.kind->name == "output") return Direction::kPlayback;
  if (setting.kind->name == "input") return Direction::kRecording;
  return std::nullopt;
}

std::span<const Socket> SocketsFor(Direction direction) {
  return direction == Direction::kPlayback ? PlaybackSockets() : RecordingSockets();
}

/// The number of the choice that a socket stands for; nothing for none.
std::optional<int> IndexOf(const ShownSetting &shown, const Socket &socket) {
  const QString choice =
      QString::fromUtf8(socket.choice.data(), static_cast<qsizetype>(socket.choice.size()));
  const qsizetype index = shown.choices.indexOf(choice);
  return index < 0 ? std::nullopt : std::optional(static_cast<int>(index));
}

QSize ScaledSize(const QSize &size) { return {Scaled(size.width()), Scaled(size.height())}; }

MixerLook LookOf(const SetupState &state) {
  const Look &look = state.LastLook();
  MixerLook mixer{.name = QString::fromUtf8(state.Model().name.data()),
                  .isConnected = look.CanSend(),
                  .isSecondBehind = look.mixers.size() > 1,
                  .hasSockets = HasRouting(state)};
  for (const auto &selector : look.selectors) {
    const bool isKnown = selector && selector->isValid;
    mixer.selectors.push_back(isKnown ? std::optional(static_cast<int>(selector->position))
                                      : std::nullopt);
  }
  for (const Warning &warning : look.warnings) mixer.toTurn.push_back(warning.channel);
  return mixer;
}

}  // namespace

SetupWindow::SetupWindow(SetupState &state)
    : state_(state),
      header_(new Header(this)),
      frame_(MakeFrame(this)),
      status_(new StatusLine(this)),
      details_(new ActionButton(tr("Show &details"), this)),
      profiles_(new ProfileShelf(state)) {
  setObjectName("setupWindow");
  setWindowTitle(tr("TRX Setup"));
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(Scaled(kMargin), Scaled(14), Scaled(kMargin), Scaled(8));
  column->setSpacing(Scaled(8));
  column->addWidget(header_);
  column->addWidget(frame_, 1);
  auto *foot = new QHBoxLayout;
  foot->addWidget(status_, 1);
  foot->addWidget(details_);
  column->addLayout(foot);
  details_->setObjectName("statusDetails");
  connect(details_, &QPushButton::clicked, this, &SetupWindow::ShowDetails);
  AddProfiles();
  FillMoreMenu();
  BuildCards();
  AddShortcuts();
  setAcceptDrops(true);
  connect(&state, &SetupState::Changed, this, &SetupWindow::Refresh);
  connect(&state, &SetupState::ModelChanged, this, &SetupWindow::BuildCards);
  connect(&state, &SetupState::Told, status_, &StatusLine::Tell);
  connect(&state, &SetupState::ChangedElsewhere, this, [this](const client::Setting &setting) {
    for (SettingCard *card : cards_) {
      if (!IsSame(card->Setting(), setting)) continue;
      card->ShowElsewhere();
      status_->Tell(tr("%1 %2: set by another program")
                        .arg(SettingAsText(setting), ChoiceAsText(*state_.Find(setting))));
    }
  });
}

void SetupWindow::BuildCards() {
  preview_.reset();
  cards_.clear();
  delete frame_->takeWidget();
  auto *body = new QWidget;
  drawing_ = new MixerDrawing(body);
  trouble_ = new TroubleCard(drawing_);
  auto *row = new QHBoxLayout(body);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(0);
  if (!state_.SettingsOfKind("output").empty()) row->addWidget(MakePlaybackColumn(body));
  row->addWidget(drawing_, 1);
  QScrollArea *scroll = MakeFrame(body);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  // It is as high as the rest, whatever is in it.
  scroll->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
  scroll->setWidget(MakeRecordingColumn(scroll));
  scroll->setFixedWidth(qMax(Scaled(kRecordingWidth), scroll->widget()->minimumSizeHint().width()));
  scroll->widget()->setAutoFillBackground(false);
  connect(scroll->verticalScrollBar(), &QScrollBar::valueChanged, this,
          &SetupWindow::RefreshDrawing);
  row->addWidget(scroll);
  frame_->setWidget(body);
  body->setAutoFillBackground(false);
  drawing_->canTake = [this](Direction direction, int channel, const Socket &socket) {
    for (const SettingCard *card : cards_) {
      if (DirectionOf(card->Setting()) != direction || card->Setting().channel != channel) continue;
      return IndexOf(*state_.Find(card->Setting()), socket).has_value();
    }
    return false;
  };
  connect(drawing_, &MixerDrawing::Dropped, this,
          [this](Direction direction, int channel, const Socket *socket) {
            ChooseSocket(direction, channel, *socket);
          });
  connect(drawing_, &MixerDrawing::SocketClicked, this,
          [this](Direction direction, const Socket *socket, const QPoint &at) {
            OfferChannels(direction, *socket, at);
          });
  connect(trouble_, &TroubleCard::DetailsWanted, this, &SetupWindow::ShowDetails);
  connect(trouble_, &TroubleCard::Told, status_, &StatusLine::Tell);
  drawing_->installEventFilter(this);
  trouble_->installEventFilter(this);
  for (SettingCard *card : cards_) card->installEventFilter(this);
  const auto recording = state_.SettingsOfKind("input");
  for (SettingCard *card : cards_) {
    card->SetWarningOpen(!recording.empty() && IsSame(card->Setting(), recording.front()->setting));
  }
  FitToScreen();
  // The header comes last: who works with keys begins with what the computer plays.
  QWidget::setTabOrder(cards_.back(), &header_->ProfilesButton());
  Refresh();
}

// What does not fit can be scrolled to, as with large letters on a small screen.
QScrollArea *SetupWindow::MakeFrame(QWidget *parent) {
  auto *frame = new QScrollArea(parent);
  frame->setFrameShape(QFrame::NoFrame);
  frame->setWidgetResizable(true);
  frame->setFocusPolicy(Qt::NoFocus);
  frame->viewport()->setAutoFillBackground(false);
  return frame;
}

// Never narrower than the cards, except on a screen that is.
void SetupWindow::FitToScreen() {
  const QSize room = screen()->availableSize();
  const bool hasRouting = HasRouting(state_);
  const int cards = frame_->widget()->minimumSizeHint().width() + 2 * Scaled(kMargin);
  const QSize needed{qMax(cards, layout()->minimumSize().width()), 0};
  const auto fitted = [&](const QSize &size) {
    return ScaledSize(size).expandedTo(needed).boundedTo(room);
  };
  setMinimumSize(fitted(hasRouting ? kSmallest : kSmallestWithoutRouting));
  if (!isVisible()) resize(fitted(hasRouting ? kSize : kSizeWithoutRouting));
}

CardColumn *SetupWindow::MakePlaybackColumn(QWidget *parent) {
  auto *column = new CardColumn(tr("Computer &plays"), tr("to this mixer channel"), parent);
  for (const ShownSetting *shown : state_.SettingsOfKind("output")) {
    AddCard(*column, shown->setting);
  }
  column->SetBuddy(cards_.front()->Control());
  column->AddRoom();
  pluggedIn_ = new PluggedInCard(state_, column);
  column->Add(pluggedIn_);
  column->setFixedWidth(qMax(Scaled(kPlaybackWidth), column->minimumSizeHint().width()));
  return column;
}

CardColumn *SetupWindow::MakeRecordingColumn(QWidget *parent) {
  const bool hasRouting = !state_.SettingsOfKind("input").empty();
  auto *column = new CardColumn(hasRouting ? tr("Computer &records") : QString(),
                                tr("this signal of the mixer"), parent);
  bool isFirst = true;
  for (const ShownSetting &shown : state_.Settings()) {
    if (shown.setting.kind->name == "output") continue;
    SettingCard *card = AddCard(*column, shown.setting);
    if (std::exchange(isFirst, false)) column->SetBuddy(card->Control());
  }
  if (state_.SettingsOfKind("output").empty()) {
    pluggedIn_ = new PluggedInCard(state_, column);
    column->Add(pluggedIn_);
  }
  column->AddRoom();
  return column;
}

SettingCard *SetupWindow::AddCard(CardColumn &column, const client::Setting &setting) {
  auto *card = new SettingCard(state_, setting, &column);
  column.Add(card);
  cards_.push_back(card);
  connect(card, &SettingCard::PointedAt, this,
          [this, card](bool isPointed, std::optional<int> choice) {
            PointAt(*card, isPointed, choice);
          });
  connect(card, &SettingCard::Touched, this, [this, card] { OpenWarningOf(card); });
  return card;
}

void SetupWindow::AddShortcuts() {
  const auto add = [this](const QKeySequence &keys, auto function) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, function);
  };
  add(QKeySequence::Undo, [this] { state_.Undo(); });
  add(QKeySequence(Qt::Key_F5), [this] { state_.LookAgain(); });
  add(QKeySequence(Qt::Key_F1), [this] { ShowDetails(); });
  add(QKeySequence::Save, [this] { profileMenu_->AskAndSave(); });
  add(QKeySequence::Quit, [this] { close(); });
}

void SetupWindow::FillMoreMenu() {
  auto *menu = new QMenu(&header_->MoreButton());
  menu->setObjectName("moreMenu");
  // The window has the keys; the menu only names them.
  const auto withKey = [](const QString &text, const QKeySequence &keys) {
    return text + '\t' + keys.toString(QKeySequence::NativeText);
  };
  QAction *undo =
      menu->addAction(withKey(tr("&Undo"), QKeySequence::Undo), &state_, &SetupState::Undo);
  menu->addAction(tr("&Send all settings again"), &state_, &SetupState::SendAllAgain);
  menu->addAction(withKey(tr("&Look again"), Qt::Key_F5), &state_, &SetupState::LookAgain);
  menu->addSeparator();
  menu->addAction(withKey(tr("&Why is my mixer not found?"), Qt::Key_F1), this,
                  &SetupWindow::ShowDetails);
  menu->addAction(tr("&About and versions"), this,
                  [this] { (new VersionsDialog(state_, this))->open(); });
  connect(menu, &QMenu::aboutToShow, this, [this, undo] { undo->setEnabled(state_.CanUndo()); });
  header_->MoreButton().setMenu(menu);
}

void SetupWindow::AddProfiles() {
  profileMenu_ = new ProfileMenu(*profiles_, &header_->ProfilesButton());
  header_->ProfilesButton().setMenu(profileMenu_);
  connect(profiles_, &ProfileShelf::Changed, this, &SetupWindow::RefreshProfiles);
  connect(profiles_, &ProfileShelf::Told, status_, &StatusLine::Tell);
  profiles_->LookAgain();
}

void SetupWindow::RefreshProfiles() {
  const QString current = profiles_->Current();
  header_->ShowProfile(profiles_->IsChanged() ? current + " •" : current);
}

// The text of one warning is enough to read at a time: that of the channel touched last.
void SetupWindow::OpenWarningOf(const SettingCard *touched) {
  if (touched->Setting().kind->extras.warning == nullptr) return;
  for (SettingCard *card : cards_) card->SetWarningOpen(card == touched);
}

void SetupWindow::dragEnterEvent(QDragEnterEvent *event) {
  if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void SetupWindow::dropEvent(QDropEvent *event) {
  for (const QUrl &url : event->mimeData()->urls()) {
    if (url.isLocalFile()) profiles_->Import(url.toLocalFile(), client::OldFile::kIsKept);
  }
}

void SetupWindow::Refresh() {
  header_->Refresh(state_);
  for (SettingCard *card : cards_) card->Refresh();
  if (pluggedIn_ != nullptr) pluggedIn_->Refresh();
  trouble_->Refresh(state_);
  PlaceTrouble();
  RefreshDrawing();
  RefreshStatus();
}

void SetupWindow::RefreshDrawing() {
  drawing_->ShowMixer(LookOf(state_));
  drawing_->ShowCables(PlanCables());
  drawing_->setAccessibleName(QString::fromUtf8(state_.Model().name.data()));
  drawing_->setAccessibleDescription(RoutingInWords(state_));
}

void SetupWindow::RefreshStatus() {
  if (state_.IsAnySending()) status_->Tell(SendingAsText(state_.LastLook()));
  QString lasting;
  if (const auto &problem = state_.StorageProblem()) {
    const ProblemWords words = ProblemAsText(*problem);
    lasting = words.title + ". " + words.text;
  } else if (!state_.IsBusReached()) {
    lasting =
        tr("There is no session bus: changes made by other programs show up here a little "
           "later.");
  }
  status_->SetLasting(lasting);
  details_->setVisible(state_.StorageProblem().has_value());
}

void SetupWindow::PlaceTrouble() {
  if (trouble_->isHidden()) return;
  const QRectF body = drawing_->Body();
  const int width = static_cast<int>(body.width()) - Scaled(44);
  // Before the first layout there is no room for anything.
  if (width <= 0) return;
  trouble_->layout()->activate();
  trouble_->resize(width, trouble_->layout()->totalHeightForWidth(width));
  trouble_->move(static_cast<int>(body.center().x()) - width / 2,
                 static_cast<int>(body.center().y()) - trouble_->height() / 2);
}

std::vector<ShownCable> SetupWindow::PlanCables() const {
  std::vector<ShownCable> cables;
  for (const SettingCard *card : cards_) {
    if (!DirectionOf(card->Setting())) continue;
    const ShownSetting &shown = *state_.Find(card->Setting());
    if (preview_ && preview_->card == card && preview_->index != shown.index) {
      cables.push_back(CableOf(*card, preview_->index, CableLook::kPreview));
      continue;
    }
    const CableLook look = shown.IsSending() ? CableLook::kSending : CableLook::kPlugged;
    cables.push_back(CableOf(*card, shown.index, look));
  }
  return cables;
}

ShownCable SetupWindow::CableOf(const SettingCard &card, int index, CableLook look) const {
  const Direction direction = *DirectionOf(card.Setting());
  const ShownSetting &shown = *state_.Find(card.Setting());
  const bool isChoice = index >= 0 && index < shown.choices.size();
  const std::string choice = isChoice ? shown.choices.at(index).toStdString() : std::string();
  const bool isMirrored = layoutDirection() == Qt::RightToLeft;
  const bool isAtLeft = (direction == Direction::kPlayback) != isMirrored;
  const int height = drawing_->mapFromGlobal(card.mapToGlobal(QPoint(0, card.PlugHeight()))).y();
  return {.direction = direction,
          .channel = card.Setting().channel,
          .plug = QPointF(isAtLeft ? 0 : drawing_->width(), height),
          .socket = SocketFor(SocketsFor(direction), choice),
          .look = look};
}

void SetupWindow::PointAt(const SettingCard &card, bool isPointed, std::optional<int> choice) {
  const auto direction = DirectionOf(card.Setting());
  if (!direction) return;
  const int32_t chosen = state_.Find(card.Setting())->index;
  preview_.reset();
  if (isPointed && choice && *choice != chosen) preview_ = Preview{&card, *choice};
  drawing_->SetFront(isPointed ? std::optional(std::pair(*direction, card.Setting().channel))
                               : std::nullopt);
  RefreshDrawing();
}

void SetupWindow::OfferChannels(Direction direction, const Socket &socket, const QPoint &at) {
  QMenu menu(this);
  menu.setObjectName("socketMenu");
  for (const SettingCard *card : cards_) {
    if (DirectionOf(card->Setting()) != direction) continue;
    const ShownSetting &shown = *state_.Find(card->Setting());
    const auto index = IndexOf(shown, socket);
    if (!index) continue;
    const QString channel = UsbChannelAsText(card->Setting().channel);
    const bool isPlayback = direction == Direction::kPlayback;
    QAction *action = menu.addAction(isPlayback ? tr("Play %1 here").arg(channel)
                                                : tr("Record on %1").arg(channel));
    action->setCheckable(true);
    action->setChecked(shown.index == *index);
    action->setData(card->Setting().channel);
  }
  if (menu.isEmpty()) return;
  if (const QAction *chosen = menu.exec(at))
    ChooseSocket(direction, chosen->data().toInt(), socket);
}

void SetupWindow::ChooseSocket(Direction direction, int channel, const Socket &socket) {
  for (const SettingCard *card : cards_) {
    if (DirectionOf(card->Setting()) != direction || card->Setting().channel != channel) continue;
    const client::Setting setting = card->Setting();
    if (const auto index = IndexOf(*state_.Find(setting), socket)) state_.Choose(setting, *index);
    return;
  }
}

void SetupWindow::ShowDetails() { (new DetailsDialog(state_, this))->open(); }

void SetupWindow::NoteVisibility() { state_.SetWatched(isVisible() && !isMinimized()); }

bool SetupWindow::eventFilter(QObject *watched, QEvent *event) {
  // Cards move when a warning opens, and the drawing grows with the window.
  if (event->type() == QEvent::Resize || event->type() == QEvent::Move) RefreshDrawing();
  // The lines of the checks count once they are shown.
  if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) PlaceTrouble();
  return QWidget::eventFilter(watched, event);
}

void SetupWindow::resizeEvent(QResizeEvent *event) {
  QWidget::resizeEvent(event);
  RefreshDrawing();
  PlaceTrouble();
}

void SetupWindow::changeEvent(QEvent *event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) {
    NoteVisibility();
  }
}

void SetupWindow::showEvent(QShowEvent *event) {
  QWidget::showEvent(event);
  if (focusWidget() == nullptr) cards_.front()->FocusControl();
  NoteVisibility();
}

void SetupWindow::hideEvent(QHideEvent *event) {
  QWidget::hideEvent(event);
  NoteVisibility();
}

}  // namespace setup
