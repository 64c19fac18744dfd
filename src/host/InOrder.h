#pragma once

#include <algorithm>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <mutex>
#include <optional>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

namespace ORXKMPrintProp::host {

/// Does the same for each number from 0 up to `count`, several at a time, and takes what comes of it in the order of
/// the numbers. Only so many results wait for their turn as there are places for, so that memory stays flat.
/// @param threads how many are at work; with 1 everything happens on the calling thread.
/// @param work is called with a number, on any thread; what it throws leaves in the place of its result.
/// @param take gets each result, on the calling thread; what it throws leaves, once no thread is at work any more.
template <class Work, class Take>
void InOrder(std::size_t count, std::size_t threads, const Work& work, const Take& take) {
  if (threads < 2 || count < 2) {
    for (std::size_t number = 0; number < count; ++number) take(work(number));
    return;
  }
  struct Place {
    std::optional<std::invoke_result_t<const Work&, std::size_t>> result;
    std::exception_ptr failure;
  };
  // Those that are quick go ahead of one that takes its time.
  constexpr std::size_t kPlacesPerThread = 16;
  std::vector<Place> places(std::min(count, threads * kPlacesPerThread));
  std::mutex mutex;
  std::condition_variable isDone;
  std::condition_variable isTaken;
  std::size_t begun = 0;
  std::size_t taken = 0;
  bool isOver = false;

  const auto doAll = [&] {
    std::unique_lock lock(mutex);
    for (;;) {
      isTaken.wait(lock, [&] { return isOver || begun == count || begun < taken + places.size(); });
      if (isOver || begun == count) return;
      const std::size_t number = begun++;
      lock.unlock();
      Place done;
      try {
        done.result = work(number);
      } catch (...) {
        done.failure = std::current_exception();
      }
      lock.lock();
      places[number % places.size()] = std::move(done);
      isDone.notify_one();
    }
  };

  std::vector<std::jthread> atWork;
  struct End {
    ~End() {
      const std::lock_guard lock(mutex);
      isOver = true;
      isTaken.notify_all();
    }
    std::mutex& mutex;
    bool& isOver;
    std::condition_variable& isTaken;
  } const end{mutex, isOver, isTaken};  // ahead of the threads, which end when they are told
  while (atWork.size() < std::min(count, threads)) atWork.emplace_back(doAll);

  std::unique_lock lock(mutex);
  for (; taken < count; ++taken, isTaken.notify_one()) {
    Place& place = places[taken % places.size()];
    isDone.wait(lock, [&] { return place.result || place.failure; });
    Place done = std::exchange(place, {});
    lock.unlock();
    if (done.failure) std::rethrow_exception(done.failure);
    take(std::move(*done.result));
    lock.lock();
  }
}

}  // namespace ORXKMPrintProp::host
