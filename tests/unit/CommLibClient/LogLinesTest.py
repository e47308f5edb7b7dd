"""Checks that a search of the sources finds every line that the network client logs, so that a log line leads to the
code that wrote it.

LogLinesTest.py SOURCES

The lines are typed as in the code, with printf conversions and C escapes.
"""
import sys
import unittest
from pathlib import Path

SOURCES = Path()

LINES = r"""
CHttp::SendRequest SendHeader() Method = %s Path = %s, Add Header = %s
CHttp::SendRequest SendMessage() Method = %s Path = %s, Add Header = %s
CHttp::SendRequest RecvResponse() Method = %s Path = %s, Add Header = %s
CHttp::SendRequest SendHeader() retry
CHttp::SendRequest SendMessage() retry
CHttp::SendRequest RecvResponse() retry
CHttp::RecvResponse RecvHeader() error
CHttp::RecvResponse RecvMessage() error
CHttp::RecvHeader Start 1
CHttp::RecvHeader Start 2
CHttp::RecvLine Count = %u
[CommLib(HTTP)] Network Timeout (No Comm)
CSocket::ReadToCount time limit
[CommLib(HTTP)] Network Timeout (recv)
[CommLib(HTTP)] Network Timeout (send)
[CommLib] ***Common Parameta Error***
[CommLib] StartConnection Get Memory error 1
[CommLib] StartConnection Get Memory error 2
[CommLib] StartConnection Get Memory error 4
[CommLib] StartConnection pHttp->Open() %s
\t## trace ## StartConnection GetServerMode() %s
\t## trace ## StartConnection GetDeviceInfoInt() %s
\t## trace ## StartConnection CheckIFVersion() %s
\t## trace ## StartConnection CompatiMode not allowed
"\t## trace ## StartConnection CompatiMode "
\t## trace ## EndConnection SendHash() %s
%s , [CommLib] SendRequest pHttp->SendRequest() %s (%s)
%s , [CommLib] SendRequest Connection Close
[CommLib] ParseCommReply %s 1
[CommLib] ParseCommReply %s 2
[CommLib] ParseCommReply %s 3
[CommLib] ParseCommReply %s 4
[Servlet] %s
[Apache/Tomcat] HTTP %d error (%s, %s)
[CommLib] GetServerMode %s 1
[CommLib] GetDeviceInfo "Mode!=Security && Type==version_of_toe" %s
[CommLib] GetDeviceInfo "Buffer Size" %s
[CommLib] GetDeviceInfoInt %s 1
[CommLib] GetDeviceInfoInt %s 2
[CommLib] GetJobNumber %s 1
[CommLib] GetPrnPossibilityNumber %s 1
%s , GetPublishID , ErrBuffer
%s , GetNPType , %d
\t## trace ## CommitJob ControlJob() %s
\t## trace ## CancelJob ControlJob(%d) %s
\t## trace ## ControlJobForMonitor ControlJob()
\t## trace ## CancelJobForBridge SendRequest() %s
\t## trace ## CancelJobForBridge ParseCommReply() %s
SendPrnDataBase, %s ret %d\n
\t## trace ## UploadFile SendRequest() Range Header = %s
[CommLib] SendJobData %s 1
\t## trace ## SendJobData GetFileUploadAuthInfo() %s
\t## trace ## SendJobData MakeUploadDir() %s
[CommLib] SendDiscInfo Invalid ServerJobID
[CommLib] SendDiscWriteInfo Invalid ServerJobID
[CommLib] SendDiscImage Invalid ServerJobID
\t## trace ## SendDiscInfo ControlJob() 1 %s
\t## trace ## SendDiscInfo ControlJob() 2 %s
\t## trace ## SendPrnData SendPrnDataBase() %s
\t## trace ## SendPrnDataExt SendPrnDataBase() %s
[CommLib] SendSpecialJobData %s 1
\t## trace ## SendSpecialJobData GetFileUploadAuthInfo() %s
\t## trace ## SendSpecialJobData MakeUploadDir() %s
\t## trace ## SendSpecialJobData FileUpload() %s
\t## trace ## SendSpecialJobData SendHash() %s
\t## trace ## SendSpecialJobData ControlJob() %s
\t## trace ## SendDiscImage UploadFile() %s
\t## trace ## SendDiscImage md.Update %s(%d)
\t## trace ## SendDiscImage SendHash() %s
""".strip().splitlines()

STATUS_QUERIES = """GetALDStatus GetStackerStatus GetDrvStatus GetDrvStatusEx GetPrnStatus GetInkStatus GetDeviceFatalError
    GetNotifyStatus GetASBStatus GetPrnStStatus GetMaintenanceInfo GetMaintenanceInfoEx""".split()
# In these lines the number of the check is also variable.
NUMBERED_CHECKS = [name for name in STATUS_QUERIES if name not in ("GetASBStatus", "GetPrnStStatus")] + [
    "GetJobStatus", "GetJobStatusEx"]
EXCHANGES = """GetServerMode GetDeviceInfo GetDeviceInfoInt GetJobNumber GetPrnPossibilityNumber GetPublishID GetJobStatus
    GetJobStatusEx SendJobData SendSpecialJobData""".split()
MONITOR = "CancelJobForMonitor StopJobForMonitor RestartJobForMonitor ChangeJobPriorityForMonitor".split()
UPLOADS = "SendDiscInfo SendDiscWriteInfo SendPrnDataBase".split()
START_WITH_JOB = MONITOR + """SendDiscInfo SendDiscWriteInfo SendDiscImage SendPrnData SendPrnDataExt CommitJob
    CancelJob""".split()
START = STATUS_QUERIES + EXCHANGES + ["CancelJobForBridge", "ChangeJobPriorityForBridge"]
END_WITH_VALUE = """GetDeviceInfoInt GetServerMode GetJobNumber GetPrnPossibilityNumber GetJobStatus SendJobData SendPrnData
    SendPrnDataExt SendSpecialJobData""".split()
END = [name for name in START + START_WITH_JOB if name not in END_WITH_VALUE]


def all_lines() -> list[str]:
    lines = list(LINES)
    lines += [fr"\t## trace ## {name} GetDeviceStatus() %s" for name in STATUS_QUERIES]
    lines += [f"[CommLib] {name} %s " for name in NUMBERED_CHECKS]
    lines += [fr"\t## trace ## {name} {callee} %s" for name in EXCHANGES for callee in ("SendRequest()", "ParseCommReply()")]
    lines += [fr"\t## trace ## {name} ControlJobForMonitor() %s" for name in MONITOR]
    lines += [fr"\t## trace ## {name} {rest}" for name in UPLOADS
              for rest in ("UploadFile() %s", "md.Update %s(%d)", "SendHash() %s")]
    lines += [f'"%s , {name} , Start"' for name in START]
    lines += [f'"%s , {name} , Start(%d)"' for name in START_WITH_JOB]
    lines += [f'"%s , {name} , End"' for name in END]
    lines += [f'"%s , {name} , End(%d)"' for name in END_WITH_VALUE]
    return lines


class LogLines(unittest.TestCase):
    def test_each_line_is_one_literal_in_the_sources(self):
        sources = "".join(path.read_text() for path in sorted(SOURCES.glob("*.cpp")))
        self.assertTrue(sources)
        for line in all_lines():
            with self.subTest(line=line):
                self.assertTrue(line in sources)


if __name__ == "__main__":
    SOURCES = Path(sys.argv.pop())
    unittest.main()
