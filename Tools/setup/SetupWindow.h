#pragma once

#include <QScrollArea>
#include <QWidget>
#include <optional>
#include <vector>

#include "CardColumn.h"
#include "Header.h"
#include "MixerDrawing.h"
#include "PluggedInCard.h"
#include "ProfileMenu.h"
#include "ProfileShelf.h"
#include "SetupState.h"
#include "StatusLine.h"
#include "TroubleCard.h"

namespace setup {

/// The window: cards on both sides, the mixer between them. Puts the parts together and lets them
/// show what the state says.
class SetupWindow : public QWidget {
  Q_OBJECT

 public:
  explicit SetupWindow(SetupState &state);

 protected:
  void resizeEvent(QResizeEvent *event) override;
  void changeEvent(QEvent *event) override;
  void showEvent(QShowEvent *event) override;
  void hideEvent(QHideEvent *event) override;
  bool eventFilter(QObject *watched, QEvent *event) override;
  void dragEnterEvent(QDragEnterEvent *event) override;
  void dropEvent(QDropEvent *event) override;

 private:
  /// A choice that an open list or the mouse is at.
  struct Preview {
    const SettingCard *card;
    int index;
  };

  void BuildCards();
  CardColumn *MakePlaybackColumn(QWidget *parent);
  CardColumn *MakeRecordingColumn(QWidget *parent);
  QScrollArea *MakeFrame(QWidget *parent);
  void FitToScreen();
  SettingCard *AddCard(CardColumn &column, const client::Setting &setting);
  void AddShortcuts();
  void FillMoreMenu();
  void AddProfiles();
  void RefreshProfiles();
  void OpenWarningOf(const SettingCard *card);
  void Refresh();
  void RefreshDrawing();
  void RefreshStatus();
  void PlaceTrouble();
  std::vector<ShownCable> PlanCables() const;
  ShownCable CableOf(const SettingCard &card, int index, CableLook look) const;
  void PointAt(const SettingCard &card, bool isPointed, std::optional<int> choice);
  void OfferChannels(Direction direction, const Socket &socket, const QPoint &at);
  void ChooseSocket(Direction direction, int channel, const Socket &socket);
  void ShowDetails();
  void NoteVisibility();

  SetupState &state_;
  Header *header_;
  QScrollArea *frame_;
  MixerDrawing *drawing_ = nullptr;
  TroubleCard *trouble_ = nullptr;
  StatusLine *status_;
  ActionButton *details_;
  std::vector<SettingCard *> cards_;
  PluggedInCard *pluggedIn_ = nullptr;
  ProfileShelf *profiles_;
  ProfileMenu *profileMenu_ = nullptr;
  std::optional<Preview> preview_;
};

}  // namespace setup
