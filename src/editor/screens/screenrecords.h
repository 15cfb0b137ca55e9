#pragma once

#include <map>
#include <memory>

#include "editor/datafolder.h"
#include "editor/screens/screenrecordform.h"
#include "ui/game.h"

namespace grapplemont {

/// The records of one page: a table to choose from, the one in hand beside it. What is in hand is
/// kept with Save; a new record is in its file from then on.
class RecordScreen : public ui::Screen {
 public:
  /// Throws as EditedData.
  RecordScreen(Game& game, const RecordPage& page);

  ui::Page Layout() override;
  void Load() override;
  void Return() override;

 private:
  // The table.
  void LookOver();
  void FillTable();
  ui::ListBox::Row RowOf(int number) const;
  bool Found(const ui::ListBox::Row& row) const;
  void Choose(int number);

  // The record in hand.
  void ShowNew(Bytes record, bool worthKeeping);
  void TakeInHand(int number, Bytes record);  // empty for none
  void ShowButtons();
  bool IsDirty() const;
  bool MayLeave();
  bool MayBegin();
  std::string Called() const;

  void lstrecords_Click();
  void txtsearch_Change() { FillTable(); }
  void cmdnew_Click();
  void cmdcopy_Click();
  void cmddelete_Click();
  void cmdrevert_Click();
  void cmdsave_Click();
  void cmdback_Click();

  DataFolder& data_;
  const RecordPage& page_;
  std::vector<FieldPlace> columns_;
  struct Faults {
    std::string Words;  // of the first few
    int Count = 0;
  };
  std::map<int, Faults> faults_;  // of the page's records, by number
  int number_ = 0;                // of the record in hand; 0 none, or one that is not kept yet
  bool fresh_ = false;            // it is a new one
  bool worthKeeping_ = false;     // and holds something even though nothing was typed
  Bytes inHand_;

  ui::Label lblfacts{*this, "lblfacts"};
  ui::TextBox txtsearch{*this, "txtsearch"};
  ui::ListBox lstrecords;
  ui::Label lblrecord{*this, "lblrecord"};
  ui::Label lblfault{*this, "lblfault"};
  RecordForm form_;
  ui::Button cmdback{*this, "cmdback", "Back", &RecordScreen::cmdback_Click};
  ui::Button cmddelete{*this, "cmddelete", "Delete", &RecordScreen::cmddelete_Click};
  ui::Button cmdcopy{*this, "cmdcopy", "Copy", &RecordScreen::cmdcopy_Click};
  ui::Button cmdnew{*this, "cmdnew", "New", &RecordScreen::cmdnew_Click};
  ui::Button cmdrevert{*this, "cmdrevert", "Revert", &RecordScreen::cmdrevert_Click};
  ui::Button cmdsave{*this, "cmdsave", "Save", &RecordScreen::cmdsave_Click};
};

}  // namespace grapplemont
