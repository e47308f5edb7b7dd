#include "ServiceReplies.h"

#include "Protocol.h"
#include "ServicePayloads.h"

namespace udsim {

namespace {

/// Returns a successful reply with this payload.
Reply success(const Request& request, std::string payload = {})
{
    return {request.control, result::SUCCESS, std::move(payload)};
}

Reply failure(const Request& request, uint64_t code)
{
    return {request.control, code, {}};
}

Reply number(const Request& request, uint64_t value)
{
    return success(request, ByteWriter().u32(value).bytes());
}

Reply text(const Request& request, const std::string& value)
{
    return success(request, ByteWriter().text(value, value.size() + 1).bytes());
}

size_t unfinishedJobs(const std::vector<Publisher>& all)
{
    size_t count = 0;
    for (const Publisher& publisher : all) {
        count += publisher.unfinishedJobs();
    }
    return count;
}

/// Returns whether the command may be sent without a publisher.
bool needsNoPublisher(const Request& request)
{
    return request.control == control::GET_JOB_NUM || request.control == control::UPDATE_WORKING_FOLDER ||
           request.control == control::GET_UNIQUE_STRING_FOR_ID;
}

Reply replyForAll(const Request& request, const std::vector<Publisher>& all, uint64_t uniqueNumber)
{
    switch (request.control) {
    case control::GET_JOB_NUM:
        return number(request, unfinishedJobs(all));
    case control::GET_UNIQUE_STRING_FOR_ID:
        return text(request, std::to_string(uniqueNumber));
    default:
        return success(request);
    }
}

/// Replies with data of the device itself, which is not available while it is disconnected.
Reply replyOfDevice(const Request& request, const Publisher& publisher)
{
    if (!publisher.connected()) {
        return failure(request, result::OFFLINE);
    }
    switch (request.control) {
    case control::GET_ALD_INFO:
        return success(request, loaderInfo(publisher));
    case control::GET_DRV_INFO:
        return success(request, driveInfo(publisher));
    case control::GET_PRT_INFO:
        return success(request, printerInfo(publisher));
    default:
        return success(request, maintenanceInfo(publisher));
    }
}

Reply precisionReply(const Request& request, const Publisher& publisher)
{
    // The oldest models do not report the precision.
    return publisher.model().maintenanceBox ? number(request, publisher.model().highPrecision ? 1 : 0)
                                            : failure(request, result::FAILURE);
}

uint64_t carryOut(const Request& request, Publisher& publisher)
{
    switch (request.control) {
    case control::JOB_STOP:
        return publisher.stopJob(request.job);
    case control::JOB_CONTINUE:
        return publisher.continueJob(request.job);
    case control::JOB_CANCEL:
        return publisher.cancelJob(request.job);
    case control::DELETE_DISC_IMAGE:
        return publisher.cancelFailedJob(request.job);
    case control::JOB_MOVE:
        return request.parameter == MOVE_PRIORITY_HIGH ? publisher.moveJobToFront(request.job)
                                                       : result::FAILURE;
    case control::SET_PUBLISH_MODE:
        return publisher.setMode(request.parameter);
    case control::NOTIFY_CHANGE:
        return publisher.isWorking() ? result::BUSY : result::SUCCESS;
    default: // NOTIFY_READ, UPDATE_WORKING_FOLDER, NOTIFY_CHANGE_ERRORRATE_TIMES: no effect
        return result::SUCCESS;
    }
}

Reply replyForOne(const Request& request, Publisher& publisher, uint64_t uniqueNumber)
{
    switch (request.control) {
    case control::GET_JOB_STATUS:
        return success(request, jobList(publisher, request.parameter));
    case control::GET_ALD_STATUS:
        return number(request, loaderStatus(publisher));
    case control::GET_INK_STATUS:
        return success(request, inkStatus(publisher));
    case control::GET_DRV_STATUS:
        return success(request, driveStatus(publisher));
    case control::GET_PRT_STATUS:
        return number(request, printerStatus(publisher));
    case control::GET_STK_STATUS:
        return success(request, stackerStatus(publisher));
    case control::GET_ALD_INFO:
    case control::GET_DRV_INFO:
    case control::GET_PRT_INFO:
    case control::GET_MAINTENANCEINFO:
        return replyOfDevice(request, publisher);
    case control::GET_JOB_NUM:
        return number(request, publisher.unfinishedJobs());
    case control::GET_ESTIMATE_CIRCULATION:
        return number(request, publisher.connected() ? publisher.printableDiscs() : CIRCULATION_UNKNOWN);
    case control::GET_PRT_NAME:
        return text(request, publisher.model().printerName);
    case control::GET_STACKER_DISC_TYPE:
        return success(request, stackerMedia(publisher));
    case control::GET_PUBLISH_MODE:
        return number(request, publisher.state().mode);
    case control::GET_DEVICE_STATUS:
        return number(request, publisher.connected() ? 1 : 0);
    case control::GET_FATAL_ERR_CODE:
        return number(request, publisher.hindrance());
    case control::GET_NOTIFY_STATUS:
        return number(request, activity(publisher));
    case control::GET_ABILITY_PNUM_PRECISION:
        return precisionReply(request, publisher);
    case control::GET_MAINTENANCEBOX_STATUS:
        return number(request, maintenanceBoxStatus(publisher));
    case control::GET_USB_MODE:
        return number(request, publisher.connected() ? publisher.state().usbMode : USB_DISCONNECTED);
    case control::GET_UNIQUE_STRING_FOR_ID:
        return text(request, std::to_string(uniqueNumber));
    default:
        return failure(request, carryOut(request, publisher));
    }
}

} // namespace

Reply replyTo(const Request& request, Publisher* publisher, const std::vector<Publisher>& all,
              uint64_t uniqueNumber)
{
    if (request.control < control::JOB_STOP || request.control > control::GET_UNIQUE_STRING_FOR_ID) {
        return failure(request, result::INVALID_CONTROL);
    }
    if (publisher != nullptr) {
        return replyForOne(request, *publisher, uniqueNumber);
    }
    if (request.publisher.empty() && needsNoPublisher(request)) {
        return replyForAll(request, all, uniqueNumber);
    }
    return failure(request, result::PUB_NAME);
}

} // namespace udsim
