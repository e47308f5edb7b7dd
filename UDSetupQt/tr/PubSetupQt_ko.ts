<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>ListedNameNote</name>
    <message>
        <source>It will be listed without a name.</source>
        <translation>목록에 이름 없이 표시됩니다.</translation>
    </message>
    <message>
        <source>It will be listed as &quot;%1&quot;.</source>
        <translation>목록에 [%1](으)로 표시됩니다.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Publishers</source>
        <translation>퍼블리셔</translation>
    </message>
    <message>
        <source>The registered disc publishers and their status</source>
        <translation>등록된 디스크 퍼블리셔와 그 상태</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>편집(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Tool</source>
        <translation>도구(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>도구 모음</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>끝내기(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>추가(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>삭제(&amp;R)...</translation>
    </message>
    <message>
        <source>&amp;Properties...</source>
        <translation>속성(&amp;P)...</translation>
    </message>
    <message>
        <source>Common &amp;Setting for Publishing…</source>
        <translation>발행 공통 설정(&amp;S)...</translation>
    </message>
    <message>
        <source>Collect and Save Logs</source>
        <translation>로그 수집 및 저장</translation>
    </message>
    <message>
        <source>&amp;About Ulmar Disc Setup</source>
        <translation>Ulmar Disc Setup 정보(&amp;A)</translation>
    </message>
    <message>
        <source>Start Ulmar Disc &amp;Monitor</source>
        <translation>Ulmar Disc Monitor 시작(&amp;M)</translation>
    </message>
</context>
<context>
    <name>PubSetup</name>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Log collection has finished.</source>
        <translation>로그 수집이 완료되었습니다.</translation>
    </message>
    <message>
        <source>Failed to execute tar command. Check that installation has been performed correctly.</source>
        <translation>tar 명령을 실행하지 못했습니다. 올바르게 설치되었는지 확인하십시오.</translation>
    </message>
    <message>
        <source>Failed to execute tar command. Check that installation has been performed correctly. (%d)</source>
        <translation>tar 명령을 실행하지 못했습니다. 올바르게 설치되었는지 확인하십시오. (%d)</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Model name</source>
        <translation>모델명</translation>
    </message>
    <message>
        <source>Host Name</source>
        <translation>호스트 이름</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>대기 중</translation>
    </message>
    <message>
        <source>Transmitting</source>
        <translation>전송 중</translation>
    </message>
    <message>
        <source>Available Space</source>
        <translation>남은 공간</translation>
    </message>
    <message>
        <source>The Publish Mode registered in the output device could not be obtained, so the previously displayed  value is displayed.
The displayed Publish Mode and stacker settings may be different from the values that are actually registered.</source>
        <translation>출력 장치에 등록된 발행 모드를 가져오지 못해 이전에 표시된 값을 표시합니다.
표시된 발행 모드와 스태커 설정은 실제로 등록된 값과 다를 수 있습니다.</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>연결되지 않음</translation>
    </message>
    <message>
        <source>Do you want to delete it?</source>
        <translation>삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>There are jobs in the output device, so it could not be deleted.
Please delete it after all jobs are finished.</source>
        <translation>출력 장치에 작업이 있어 삭제하지 못했습니다.
모든 작업이 완료된 후 삭제하십시오.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>설정을 변경하지 못했습니다.</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup collects logs about CD/DVD/BD Publisher, and then saves them in local PC.
Refer to the documentation for what kind of information is collected.
ARVEN Ulmar Disc Setup does not send information.
Would you like to continue?</source>
        <translation>ARVEN Ulmar Disc Setup은 CD/DVD/BD 퍼블리셔에 관한 로그를 수집하여 이 컴퓨터에 저장합니다.
수집하는 정보의 종류는 설명서를 참조하십시오.
ARVEN Ulmar Disc Setup은 정보를 전송하지 않습니다.
계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>다른 이름으로 저장</translation>
    </message>
    <message>
        <source>Archive file to save (*.tgz)</source>
        <translation>저장할 압축 파일 (*.tgz)</translation>
    </message>
    <message>
        <source>Administrator not registered</source>
        <translation>관리자가 등록되지 않음</translation>
    </message>
    <message>
        <source>Unsupported version</source>
        <translation>지원되지 않는 버전</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>준비됨</translation>
    </message>
    <message>
        <source>No publishers are registered. To add one, choose Add in the Edit menu.</source>
        <translation>등록된 퍼블리셔가 없습니다. 추가하려면 [편집] 메뉴에서 [추가]를 선택하십시오.</translation>
    </message>
    <message>
        <source>No publishers are registered.</source>
        <translation>등록된 퍼블리셔가 없습니다.</translation>
    </message>
</context>
<context>
    <name>StatusProgram</name>
    <message>
        <source>Stacker 4</source>
        <translation>스태커 4</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>잉크</translation>
    </message>
    <message>
        <source>Prints left</source>
        <translation>남은 인쇄 매수</translation>
    </message>
    <message>
        <source>No jobs</source>
        <translation>작업 없음</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>디스크</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>Time left</source>
        <translation>남은 시간</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>대기 중</translation>
    </message>
    <message>
        <source>running</source>
        <translation>실행 중</translation>
    </message>
    <message>
        <source>canceling</source>
        <translation>취소하는 중</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>일시 중지하는 중</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>일시 중지됨</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>중지하는 중</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>중지됨</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>취소됨</translation>
    </message>
    <message>
        <source>finished</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>시안</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>마젠타</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>옐로</translation>
    </message>
    <message>
        <source>Light cyan</source>
        <translation>라이트 시안</translation>
    </message>
    <message>
        <source>Light magenta</source>
        <translation>라이트 마젠타</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>블랙</translation>
    </message>
    <message>
        <source>nearly empty</source>
        <translation>거의 비어 있음</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>분리됨</translation>
    </message>
    <message>
        <source>not recognized</source>
        <translation>인식되지 않음</translation>
    </message>
    <message>
        <source>not an original</source>
        <translation>비정품</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>not full</source>
        <translation>여유 있음</translation>
    </message>
    <message>
        <source>too full</source>
        <translation>초과 적재</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>유휴</translation>
    </message>
    <message>
        <source>contains a disc</source>
        <translation>디스크 있음</translation>
    </message>
    <message>
        <source>writing</source>
        <translation>쓰는 중</translation>
    </message>
    <message>
        <source>verifying</source>
        <translation>확인하는 중</translation>
    </message>
    <message>
        <source>error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>사용 안 함</translation>
    </message>
    <message>
        <source>conveying</source>
        <translation>이송 중</translation>
    </message>
    <message>
        <source>running a plug-in</source>
        <translation>플러그인 실행 중</translation>
    </message>
    <message>
        <source>measuring</source>
        <translation>측정 중</translation>
    </message>
    <message>
        <source>reading</source>
        <translation>읽는 중</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>인쇄 중</translation>
    </message>
    <message>
        <source>cleaning</source>
        <translation>청소 중</translation>
    </message>
    <message>
        <source>drying</source>
        <translation>건조 중</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>사용 중</translation>
    </message>
    <message>
        <source>Security mode</source>
        <translation>보안 모드</translation>
    </message>
    <message>
        <source>Output control mode</source>
        <translation>배출 제어 모드</translation>
    </message>
    <message>
        <source>Error rate mode</source>
        <translation>오류율 모드</translation>
    </message>
    <message>
        <source>Read mode</source>
        <translation>읽기 모드</translation>
    </message>
    <message>
        <source>Input Stacker</source>
        <translation>공급 스태커</translation>
    </message>
    <message>
        <source>maintenance due soon</source>
        <translation>곧 유지보수 필요</translation>
    </message>
    <message>
        <source>ink pad nearly full</source>
        <translation>잉크 패드 거의 가득 참</translation>
    </message>
    <message>
        <source>mechanical warning</source>
        <translation>기계 경고</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>오프라인</translation>
    </message>
    <message>
        <source>ink pad full</source>
        <translation>잉크 패드 가득 참</translation>
    </message>
    <message>
        <source>maintenance required</source>
        <translation>유지보수 필요</translation>
    </message>
    <message>
        <source>fatal error</source>
        <translation>치명적 오류</translation>
    </message>
    <message>
        <source>disc cover open</source>
        <translation>디스크 커버 열림</translation>
    </message>
    <message>
        <source>ink cover open</source>
        <translation>잉크 커버 열림</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>잉크 없음</translation>
    </message>
    <message>
        <source>maintenance box cover open</source>
        <translation>유지보수 상자 커버 열림</translation>
    </message>
    <message>
        <source>maintenance box removed</source>
        <translation>유지보수 상자 제거됨</translation>
    </message>
    <message>
        <source>maintenance box full</source>
        <translation>유지보수 상자 가득 참</translation>
    </message>
    <message>
        <source>mechanical error</source>
        <translation>기계 오류</translation>
    </message>
    <message>
        <source>stacker 1 removed</source>
        <translation>스태커 1 제거됨</translation>
    </message>
    <message>
        <source>stacker 2 removed</source>
        <translation>스태커 2 제거됨</translation>
    </message>
    <message>
        <source>stacker 3 removed</source>
        <translation>스태커 3 제거됨</translation>
    </message>
    <message>
        <source>stacker 4 open</source>
        <translation>스태커 4 열림</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>전원 꺼짐</translation>
    </message>
    <message>
        <source>fatal printer error</source>
        <translation>프린터 치명적 오류</translation>
    </message>
    <message>
        <source>printer requires maintenance</source>
        <translation>프린터 유지보수 필요</translation>
    </message>
    <message>
        <source>printer error</source>
        <translation>프린터 오류</translation>
    </message>
    <message>
        <source>stacker 1 too full</source>
        <translation>스태커 1 용량 초과</translation>
    </message>
    <message>
        <source>stacker 2 too full</source>
        <translation>스태커 2 용량 초과</translation>
    </message>
    <message>
        <source>in operation</source>
        <translation>작동 중</translation>
    </message>
    <message>
        <source>stacker 3 too full</source>
        <translation>스태커 3 용량 초과</translation>
    </message>
    <message>
        <source>initializing</source>
        <translation>초기화 중</translation>
    </message>
    <message>
        <source>recovering</source>
        <translation>복구 중</translation>
    </message>
    <message>
        <source>finalizing</source>
        <translation>마무리 중</translation>
    </message>
    <message>
        <source>initialization suspended</source>
        <translation>초기화 중단됨</translation>
    </message>
    <message>
        <source>recovery suspended</source>
        <translation>복구 중단됨</translation>
    </message>
    <message>
        <source>disc pick error</source>
        <translation>디스크 집기 오류</translation>
    </message>
    <message>
        <source>under maintenance</source>
        <translation>유지보수 중</translation>
    </message>
    <message>
        <source>disc management error</source>
        <translation>디스크 관리 오류</translation>
    </message>
    <message>
        <source>fan error</source>
        <translation>팬 오류</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>응답 없음</translation>
    </message>
</context>
<context>
    <name>aboutDialog</name>
    <message>
        <source>About ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup 정보</translation>
    </message>
    <message>
        <source>Program icon</source>
        <translation>프로그램 아이콘</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup for Linux</source>
        <translation>ARVEN Ulmar Disc Setup(Linux용)</translation>
    </message>
    <message>
        <source>Registers disc publishers, shows their status and changes their settings.</source>
        <translation>디스크 퍼블리셔를 등록하고 상태를 표시하며 설정을 변경합니다.</translation>
    </message>
</context>
<context>
    <name>addPublisherDialog</name>
    <message>
        <source>Register New CD/DVD/BD Publisher</source>
        <translation>새 CD/DVD/BD 퍼블리셔 등록</translation>
    </message>
    <message>
        <source>Please specify the IP address or host name for the CD/DVD Publisher on the network you want to register.</source>
        <translation>등록할 네트워크 CD/DVD 퍼블리셔의 IP 주소 또는 호스트 이름을 지정하십시오.</translation>
    </message>
    <message>
        <source>Please type the name of a CD/DVD Publisher.</source>
        <translation>CD/DVD 퍼블리셔의 이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>The same name is already registered.
Please use a different name.</source>
        <translation>같은 이름이 이미 등록되어 있습니다.
다른 이름을 사용하십시오.</translation>
    </message>
    <message>
        <source>The output device could not be found on the network.
There is a possibility that either the host name or IP address is wrong, or the output device is not connected to the network.</source>
        <translation>네트워크에서 출력 장치를 찾을 수 없습니다.
호스트 이름 또는 IP 주소가 잘못되었거나 출력 장치가 네트워크에 연결되지 않았을 수 있습니다.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>설정을 변경하지 못했습니다.</translation>
    </message>
</context>
<context>
    <name>printerMaintHeadCleaning1</name>
    <message>
        <source>Head Cleaning</source>
        <translation>헤드 청소</translation>
    </message>
    <message>
        <source>Head cleaning</source>
        <translation>헤드 청소</translation>
    </message>
    <message>
        <source>Only clean the print head when faint areas or gaps appear in your printout, because cleaning consumes ink.
If there is not enough ink to perform a head cleaning, replace the ink cartridge first.</source>
        <translation>헤드 청소에는 잉크가 소모되므로 인쇄물에 흐릿한 부분이나 빈 부분이 있을 때만 프린트 헤드를 청소하십시오.
헤드 청소에 필요한 잉크가 부족하면 먼저 잉크 카트리지를 교체하십시오.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>시작</translation>
    </message>
</context>
<context>
    <name>printerMaintHeadCleaning2</name>
    <message>
        <source>Head Cleaning</source>
        <translation>헤드 청소</translation>
    </message>
    <message>
        <source>Head cleaning</source>
        <translation>헤드 청소</translation>
    </message>
    <message>
        <source>Cleaning takes a couple of minutes.  Cleaning is finished when the power light on the printer&apos;s control panel stops flashing. To check the effectiveness of the cleaning, click the Print Nozzle Check Pattern.</source>
        <translation>청소에는 몇 분 정도 걸립니다. 프린터 제어판의 전원 표시등이 더 이상 깜박이지 않으면 청소가 완료된 것입니다. 청소 결과를 확인하려면 [노즐 점검 패턴 인쇄]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Nozzle check pattern</source>
        <translation>노즐 점검 패턴 인쇄</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>마침</translation>
    </message>
</context>
<context>
    <name>printerMaintNozzleCheck1</name>
    <message>
        <source>Nozzle Check</source>
        <translation>노즐 점검</translation>
    </message>
    <message>
        <source>Nozzle check</source>
        <translation>노즐 점검</translation>
    </message>
    <message>
        <source>Nozzle check pattern</source>
        <translation>노즐 점검 패턴</translation>
    </message>
    <message>
        <source>Print a pattern in order to check that the print head nozzles are not blocked.

Check the cable connection and turn the device on. Be sure to set discs with an outside print diameter of 116 mm or more in Stacker 1.</source>
        <translation>패턴을 인쇄하여 프린트 헤드의 노즐이 막히지 않았는지 점검합니다.

케이블 연결을 확인하고 장치의 전원을 켜십시오. 인쇄 영역의 바깥지름이 116mm 이상인 디스크를 반드시 스태커 1에 넣으십시오.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>인쇄</translation>
    </message>
</context>
<context>
    <name>printerMaintNozzleCheck2</name>
    <message>
        <source>Nozzle Check</source>
        <translation>노즐 점검</translation>
    </message>
    <message>
        <source>Nozzle check</source>
        <translation>노즐 점검</translation>
    </message>
    <message>
        <source>Pattern without missing segments</source>
        <translation>빠진 부분이 없는 패턴</translation>
    </message>
    <message>
        <source>Pattern with missing segments</source>
        <translation>빠진 부분이 있는 패턴</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>양호</translation>
    </message>
    <message>
        <source>Cleaning needed</source>
        <translation>청소 필요</translation>
    </message>
    <message>
        <source>Compare the printed pattern with the sample above. If any segments are missing in the printed pattern, click the Clean button. Otherwise, click the Finish button to quit.</source>
        <translation>인쇄된 패턴을 위의 견본과 비교하십시오. 인쇄된 패턴에 빠진 부분이 있으면 [헤드 청소]를 클릭하십시오. 없으면 [마침]을 클릭하여 노즐 점검을 끝내십시오.</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>헤드 청소</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>마침</translation>
    </message>
</context>
<context>
    <name>propertyDialog</name>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Host name</source>
        <translation>호스트 이름</translation>
    </message>
    <message>
        <source>Stacker Settings</source>
        <translation>스태커 설정</translation>
    </message>
    <message>
        <source>Publish Mode</source>
        <translation>발행 모드</translation>
    </message>
    <message>
        <source>Standard mode</source>
        <translation>표준 모드</translation>
    </message>
    <message>
        <source>External Output / Low-volume mode</source>
        <translation>외부 배출 / 소량 모드</translation>
    </message>
    <message>
        <source>Batch mode</source>
        <translation>일괄 처리 모드</translation>
    </message>
    <message>
        <source>Stacker 1</source>
        <translation>스태커 1</translation>
    </message>
    <message>
        <source>Stacker 2</source>
        <translation>스태커 2</translation>
    </message>
    <message>
        <source>Output Stacker</source>
        <translation>배출 스태커</translation>
    </message>
    <message>
        <source>Stacker 3</source>
        <translation>스태커 3</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>사용</translation>
    </message>
    <message>
        <source>Do not use</source>
        <translation>사용 안 함</translation>
    </message>
    <message>
        <source>Way of the discs</source>
        <translation>디스크 이동 경로</translation>
    </message>
    <message>
        <source>Drive Settings</source>
        <translation>드라이브 설정</translation>
    </message>
    <message>
        <source>Drive to Use</source>
        <translation>사용할 드라이브</translation>
    </message>
    <message>
        <source>Use Both</source>
        <translation>모두 사용</translation>
    </message>
    <message>
        <source>Use Drive 1 Only</source>
        <translation>드라이브 1만 사용</translation>
    </message>
    <message>
        <source>Use Drive 2 Only</source>
        <translation>드라이브 2만 사용</translation>
    </message>
    <message>
        <source>Number of write retries</source>
        <translation>쓰기 재시도 횟수</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>프린터 설정</translation>
    </message>
    <message>
        <source>Show &amp;error mark on discs that experience errors</source>
        <translation>오류가 발생한 디스크에 오류 표시 인쇄(&amp;E)</translation>
    </message>
    <message>
        <source>Failure error mark</source>
        <translation>오류 표시</translation>
    </message>
    <message>
        <source>Printer Maintenance</source>
        <translation>프린터 유지보수</translation>
    </message>
    <message>
        <source>Nozzle Check</source>
        <translation>노즐 점검</translation>
    </message>
    <message>
        <source>Use this utility if gaps or faint areas appear in your printout.</source>
        <translation>인쇄물에 빈 부분이나 흐릿한 부분이 있으면 이 기능을 사용하십시오.</translation>
    </message>
    <message>
        <source>Head Cleaning</source>
        <translation>헤드 청소</translation>
    </message>
    <message>
        <source>Use this utility if your print quality declines or the Nozzle Check indicates clogged nozzles.</source>
        <translation>인쇄 품질이 떨어지거나 노즐 점검에서 노즐 막힘이 확인되면 이 기능을 사용하십시오.</translation>
    </message>
    <message>
        <source>Maintenance Info</source>
        <translation>유지보수 정보</translation>
    </message>
    <message>
        <source>Total discs published:</source>
        <translation>총 발행 디스크 수:</translation>
    </message>
    <message>
        <source>[discs]</source>
        <translation>[장]</translation>
    </message>
    <message>
        <source>Number of printed discs:</source>
        <translation>인쇄한 디스크 수:</translation>
    </message>
    <message>
        <source>Maintenance Box free space:</source>
        <translation>유지보수 상자의 남은 공간:</translation>
    </message>
    <message>
        <source>[%]</source>
        <translation>[%]</translation>
    </message>
    <message>
        <source>Service life of Drive 1:</source>
        <translation>드라이브 1의 수명:</translation>
    </message>
    <message>
        <source>Service life of Drive 2:</source>
        <translation>드라이브 2의 수명:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>일련 번호:</translation>
    </message>
    <message>
        <source>Version Information</source>
        <translation>버전 정보</translation>
    </message>
    <message>
        <source>Autoloader:</source>
        <translation>오토로더:</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>프린터:</translation>
    </message>
    <message>
        <source>Drive 1:</source>
        <translation>드라이브 1:</translation>
    </message>
    <message>
        <source>Drive 2:</source>
        <translation>드라이브 2:</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>서버:</translation>
    </message>
    <message>
        <source>Ulmar Disc Net Administrator:</source>
        <translation>Ulmar Disc Net Administrator:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>적용(&amp;A)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>propertyDialogEx</name>
    <message>
        <source>Nozzle Check</source>
        <translation>노즐 점검</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>헤드 청소</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>인쇄</translation>
    </message>
    <message>
        <source>Do not print</source>
        <translation>인쇄 안 함</translation>
    </message>
    <message>
        <source>Service life of Drive:</source>
        <translation>드라이브의 수명:</translation>
    </message>
    <message>
        <source>Drive:</source>
        <translation>드라이브:</translation>
    </message>
    <message>
        <source>Properties - </source>
        <translation>속성 - </translation>
    </message>
    <message>
        <source>Please type a name for the output device.</source>
        <translation>출력 장치의 이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>&quot;\&quot; cannot be used in the output device name.</source>
        <translation>출력 장치 이름에는 &quot;\&quot;를 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>The same name is already registered.
Please use a different name.</source>
        <translation>같은 이름이 이미 등록되어 있습니다.
다른 이름을 사용하십시오.</translation>
    </message>
    <message>
        <source>The settings could not be changed because registration of the Publish Mode in the output device settings failed.
Please change the settings after checking the power supply of the output device and the connection.</source>
        <translation>출력 장치에 발행 모드를 등록하지 못해 설정을 변경하지 못했습니다.
출력 장치의 전원과 연결을 확인한 후 설정을 변경하십시오.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>설정을 변경하지 못했습니다.</translation>
    </message>
    <message>
        <source>This output device is processing jobs and the settings could not be changed.
Please change it after all jobs are completed.</source>
        <translation>출력 장치가 작업을 처리하고 있어 설정을 변경하지 못했습니다.
모든 작업이 완료된 후 변경하십시오.</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Output Stacker</source>
        <translation>배출 스태커</translation>
    </message>
</context>
<context>
    <name>settingDialog</name>
    <message>
        <source>Common Setting for Publishing</source>
        <translation>발행 공통 설정</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Working Folder</source>
        <translation>작업 폴더</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>찾아보기...</translation>
    </message>
    <message>
        <source>Notification Settings</source>
        <translation>알림 설정</translation>
    </message>
    <message>
        <source>Notification Method</source>
        <translation>알림 방법</translation>
    </message>
    <message>
        <source>Beep when a job is finished, or when the source stacker is empty (RT-300III)</source>
        <translation>작업이 완료되거나 공급 스태커가 비면 신호음 울리기(RT-300III)</translation>
    </message>
    <message>
        <source>Notification when a job is finished</source>
        <translation>작업 완료 알림</translation>
    </message>
    <message>
        <source>Notify after each job is finished</source>
        <translation>각 작업이 완료될 때마다 알림</translation>
    </message>
    <message>
        <source>Notify after all jobs are finished</source>
        <translation>모든 작업이 완료되면 알림</translation>
    </message>
    <message>
        <source>Network CD/DVD/BD Publisher</source>
        <translation>네트워크 CD/DVD/BD 퍼블리셔</translation>
    </message>
    <message>
        <source>Compatibility Approval Settings</source>
        <translation>호환성 승인 설정</translation>
    </message>
    <message>
        <source>Allow security risks and approve the use of older versions of network CD/DVD/BD publishers</source>
        <translation>보안 위험을 감수하고 이전 버전의 네트워크 CD/DVD/BD 퍼블리셔 사용 승인</translation>
    </message>
    <message>
        <source>When this is selected, you can use the following devices.</source>
        <translation>이 옵션을 선택하면 다음 장치를 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>RT-300NII:</source>
        <translation>RT-300NII:</translation>
    </message>
    <message>
        <source>Server versions older than 3.30</source>
        <translation>버전 3.30 미만의 서버</translation>
    </message>
    <message>
        <source>It is strongly recommended that you upgrade to the latest software version to handle vulnerabilities.</source>
        <translation>취약점에 대처하려면 최신 버전의 소프트웨어로 업그레이드할 것을 강력히 권장합니다.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>적용(&amp;A)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>settingDialogEx</name>
    <message>
        <source>Select working folder.</source>
        <translation>작업 폴더 선택</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>The working folder could not be changed because there is a job being processed on this computer.
Please change the working folder after all jobs are finished.</source>
        <translation>이 컴퓨터에서 처리 중인 작업이 있어 작업 폴더를 변경하지 못했습니다.
모든 작업이 완료된 후 작업 폴더를 변경하십시오.</translation>
    </message>
    <message>
        <source>The specified folder cannot be set as the working folder.
Specify a different folder.</source>
        <translation>지정한 폴더는 작업 폴더로 설정할 수 없습니다.
다른 폴더를 지정하십시오.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>설정을 변경하지 못했습니다.</translation>
    </message>
</context>
</TS>
