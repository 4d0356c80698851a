#pragma once

#include <TambleCore/Jobs/Isolation/WorkerMessage.h>
#include <TambleCore/Jobs/WorkNeeds.h>
#include <TambleCore/Support/Failure.h>
#include <TambleCore/Support/WorkContext.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace tamble {

class WorkerProcess;

struct WorkerLimits {
    /// How long a worker may take to end its work after a stop request, before it is killed.
    std::chrono::milliseconds stopping{2000};
    /// How long a worker may neither report nor use the processor: it waits for something that never comes.
    std::chrono::milliseconds idle{std::chrono::minutes(2)};
    /// How much processor time a worker may use without reporting: it turns in circles. Encoding the largest
    /// pictures takes a few minutes and cannot report.
    std::chrono::milliseconds processor{std::chrono::minutes(15)};
    /// How long a worker may take to start.
    std::chrono::milliseconds starting{std::chrono::seconds(30)};
    /// How many idle workers may wait on when a call needs one with another permit.
    std::size_t spare = 0;
    /// Bytes of memory for each worker.
    std::uint64_t memory = defaultMemory();

    /// Half of the machine's memory, within 1…4 GiB.
    static std::uint64_t defaultMemory();
};

/// Variables by name.
using Environment = std::map<std::string, std::string>;

/// What one worker is allowed and given for good.
struct WorkerPermit {
    /// It may write only below this folder, or nowhere if that is empty.
    std::filesystem::path writable;
    WorkNeeds needs = {};
    /// What it has beside the environment of this program; from the pool.
    Environment environment = {};

    friend bool operator==(const WorkerPermit&, const WorkerPermit&) = default;
};

/// A worker died, hung or answered nonsense; it has been ended.
class WorkerLost : public std::exception {
  public:
    explicit WorkerLost(std::string detail);
    ~WorkerLost() override;
    const char* what() const noexcept override { return detail_.c_str(); }

  private:
    std::string detail_;
};

/// No worker can be started: the program is not completely installed, or the machine is out of processes.
class WorkerUnavailable : public Failure {
  public:
    explicit WorkerUnavailable(std::string detail);
    ~WorkerUnavailable() override;
};

/// The worker processes of an application. Started when first needed, as many as calls at the same time, and
/// as many spare ones as the limits allow;
/// each serves one call at a time and is used again for the next. They end with the pool.
class WorkerPool {
  public:
    /// An empty `program` stands for the one that workerExecutable() finds.
    explicit WorkerPool(WorkerLimits limits = {}, std::filesystem::path program = {});
    ~WorkerPool();
    WorkerPool(const WorkerPool&) = delete;
    WorkerPool& operator=(const WorkerPool&) = delete;

    /// For the calls that begin from now on.
    void setEnvironment(Environment environment);

    /// Has a worker do the request and answers its last reply. Throws WorkerLost, WorkerUnavailable, and
    /// Cancelled when a stop request had to be enforced. To be called from several threads.
    WorkerReply perform(const WorkerRequest& request, const WorkerPermit& permit, const WorkContext& context);

  private:
    WorkerPermit completed(WorkerPermit permit);
    std::unique_ptr<WorkerProcess> take(const WorkerPermit& permit);
    std::unique_ptr<WorkerProcess> startWorker(const WorkerPermit& permit) const;
    void giveBack(std::unique_ptr<WorkerProcess> worker);

    WorkerLimits limits_;
    std::filesystem::path program_;
    std::mutex mutex_;
    Environment environment_;
    std::vector<std::unique_ptr<WorkerProcess>> idle_;
};

}  // namespace tamble
