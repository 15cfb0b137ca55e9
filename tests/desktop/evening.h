#pragma once

#include <QElapsedTimer>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "desktop/player.h"
#include "support/homefolder.h"
#include "ui/game.h"

namespace grapplemont::test {

/// Somebody's first evening in the window of the whole game, by mouse or without one: a new game
/// and its guide, a worker signed, a show booked and held, the morning after, the month's end, the
/// mail, a save copied and loaded. Each step fails the test when it does not lead where it should.
class Evening {
 public:
  enum class Hands { Mouse, Keys };
  static constexpr std::uint64_t kUsualSeed = 11;
  /// In a home of its own whose default data are these; luck is the seed's.
  Evening(const World& data, Hands hands, std::uint64_t seed = kUsualSeed);
  ~Evening();

  void NewGame();
  void FirstWeek();
  void SignSomebody();
  /// Days pass up to a show, whose first row is booked step by step and the rest filled.
  void BookAShow();
  void HoldIt();
  void MorningAfter();
  void ToTheMonthsEnd();
  void ReadMail();
  /// The search of everything, letter by letter, and away again.
  void Search(const QString& name);
  void CopySaveAndLoad();
  void All();

  /// Hears of each key or click, and how long after it the window was painted again, in
  /// milliseconds. A box that asks something ends the act that brought it.
  std::function<void(const std::string& act, double milliseconds)> Watch;

  const World& TheWorld() { return game_.World(); }
  std::string Top() const { return play_.Top(); }
  /// How many decisions have waited on the way.
  int Decided() const { return decided_; }

 private:
  void Act(const std::string& what, const std::function<void()>& act);
  void Painted(const std::string& what);
  /// The keyboard goes to the control, by Tab alone.
  void Reach(const QString& control);
  void Press(const QString& button);
  void PickRow(const QString& list, int row);
  void Fill(const QString& line, const QString& text);
  void Leave();
  bool Sees(const QString& name) { return play_.Sees(name); }
  void AnswerBox();
  /// From the wizard's first step to the sheet.
  void BookARow();
  /// By the auto booker's proposal.
  void FillTheRest();
  void GoHome();
  /// What has happened backstage stands before everything else until it is decided.
  void DecideWhatWaits();
  void Arrive(const std::string& screen);

  HomeFolder home_;
  std::unique_ptr<Disk> disk_ = RealDisk(Syncs::None);
  Hands hands_;
  Player play_;
  Game game_;
  QTimer boxes_;
  QElapsedTimer since_;
  std::string doing_;
  bool painting_ = false;
  int decided_ = 0;
};

}  // namespace grapplemont::test
