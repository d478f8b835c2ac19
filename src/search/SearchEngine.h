#pragma once

#include "state/Ports.h"
#include "state/ProgramFolder.h"
#include "state/ProgramState.h"

namespace norlaplan {

/// Looks on while a search runs: shows how far it is and may stop it.
class SearchWatch {
  public:
    virtual ~SearchWatch() = default;
    /// Called for every row read, and in rows that take long, with the part of the work that is done (0 to
    /// 1). False stops the search.
    virtual bool goOn(double done) = 0;
};

/// The most rows that the results hold.
constexpr int kMostHits = 300;

enum class SearchEnd { Found, NoneFound, Stopped };

/// Walks the three section tables of the chosen style, keeps what fits the envelope, runs each through the
/// solver and fills the results. The state's bearing, loads and results of a solve stay as they are: a chosen
/// row is decoded when it becomes the bearing in hand. Messages of the solver are shown once a search, its
/// question is asked once; rows that are given up are listed with the life 0, and a message tells how many.
/// Numbers of the tables that are none, and rows that are left out because their name is not of their table,
/// are told in one message.
///
/// With no row found the program's message is shown, the sizes count as not chosen, and `noResultFlag` is
/// set. A stopped search and one that ends in a run-time error leave no rows. Errors: those of the tables
/// (53, 62), 9 for a speed index outside 1 to 4 or a row beyond the 300th, 11 for a life of 0 where it
/// divides.
SearchEnd RunBearingSearch(ProgramState& state, const ProgramFolder& folder, MessagePort& messages,
                           SearchWatch& watch);

}  // namespace norlaplan
