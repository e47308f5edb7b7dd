// The initial state of machines and jobs, and the properties of jobs and stackers.
#include <utility>

#include "Protocol.h"
#include "Publisher.h"

namespace udsim {

JobSetup JobSetup::cleaning(std::string id)
{
    return {.name = "Head Cleaning", .copies = 0, .type = JOB_TYPE_CLEANING, .id = std::move(id)};
}

JobSetup JobSetup::nozzleCheck(std::string id, uint64_t destinations)
{
    return {.name = "Nozzle Check",
            .copies = 1,
            .type = JOB_TYPE_NOZZLE_CHECK,
            .id = std::move(id),
            .destinations = destinations};
}

bool Job::isCleaning() const
{
    return type == JOB_TYPE_CLEANING;
}

bool Job::isNozzleCheck() const
{
    return type == JOB_TYPE_NOZZLE_CHECK;
}

bool Job::prints() const
{
    return isNozzleCheck() || (!isCleaning() && (type & JOB_TYPE_PRINT) != 0);
}

bool Job::isEnded() const
{
    return status == job_status::CANCELLED || status == job_status::FINISHED;
}

bool Job::isUnderWay() const
{
    return status == job_status::RUNNING || status == job_status::CANCEL_PENDING ||
           status == job_status::PAUSE_PENDING || status == job_status::STOP_PENDING;
}

uint32_t Job::rounds() const
{
    return isCleaning() ? 1 : copies;
}

bool Stacker::isOutput() const
{
    return media == media::OUTPUT;
}

bool Stacker::isInput() const
{
    return media != media::OUTPUT && media != media::NOT_USED;
}

PublisherSetup PublisherSetup::ofModel(const Model& model)
{
    PublisherSetup setup;
    setup.model = &model;
    setup.usbMode = USB_SUPER_SPEED;
    setup.mostJobs = Publisher::MAX_JOBS;
    setup.maintenanceBox = 100;
    setup.discTime = 40'000;
    setup.cleaningTime = 20'000;
    setup.ink.fill(Publisher::FULL_INK);
    setup.setMode(mode::NORMAL);
    setup.stackers[0].discs = Publisher::STACKER_CAPACITY;
    return setup;
}

void PublisherSetup::setMode(uint32_t newMode)
{
    mode = newMode;
    uint32_t supply = stackers[0].isInput() ? stackers[0].media : media::CDR;
    if (mode == mode::ERROR_RATE || mode == mode::READ) {
        supply = media::INPUT;
    } else if (supply == media::INPUT) {
        supply = media::CDR;
    }
    stackers[0].media = supply;
    stackers[1].media = mode == mode::BATCH || mode == mode::OUTPUT ? supply : media::OUTPUT;
    const bool intoThird = mode == mode::BATCH || model->stackers < 4;
    stackers[2].media = intoThird ? media::OUTPUT : media::NOT_USED;
    stackers[3].media = intoThird ? media::NOT_USED : media::OUTPUT;
}

} // namespace udsim
