#include "FakePublisher.h"
#include "SyslogLines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

TEST(PublishID, IsTheTextOfTheServer)
{
    SyslogLines log;
    FakePublisher publisher({GoodReply("ID-0017")});
    char id[8] = "xxxxxxx";
    DWORD need = 7;
    EXPECT_EQ(GetPublishID(publisher.Handle(), id, sizeof id, &need), NCL_SUCCESS);
    EXPECT_STREQ(id, "ID-0017");
    EXPECT_EQ(need, 0U);
    EXPECT_EQ(publisher.Requests().at(0).head,
              "GET /webapp2/PublishIDGetter HTTP/1.1\r\nHost:localhost\r\n\r\n");
    EXPECT_THAT(log.Take(),
                ElementsAre("<6>server , GetPublishID , Start", "<6>server , GetPublishID , End"));
}

TEST(PublishID, AnIdThatDidNotFitIsReturnedByTheNextCall)
{
    SyslogLines log;
    FakePublisher publisher({GoodReply("ID-0017"), GoodReply("ID-0018")});
    char id[8] = "";
    DWORD need = 0;
    EXPECT_EQ(GetPublishID(publisher.Handle(), id, 7, &need), NCL_ERR_BUF_SIZE); // no room for the zero byte
    EXPECT_EQ(need, 8U);
    EXPECT_STREQ(id, "");
    EXPECT_THAT(log.Take(),
                ElementsAre("<6>server , GetPublishID , Start", "<3>server , GetPublishID , ErrBuffer"));
    EXPECT_EQ(GetPublishID(publisher.Handle(), id, 0, &need), NCL_ERR_BUF_SIZE); // it is kept
    EXPECT_EQ(need, 8U);
    EXPECT_THAT(log.Take(), ElementsAre("<6>server , GetPublishID , Start"));
    EXPECT_EQ(GetPublishID(publisher.Handle(), id, 8, &need), NCL_SUCCESS);
    EXPECT_EQ(need, 0U);
    EXPECT_STREQ(id, "ID-0017");
    EXPECT_THAT(log.Take(), ElementsAre("<6>server , GetPublishID , Start")); // without an end line
    EXPECT_EQ(publisher.Requests().size(), 1U);

    EXPECT_EQ(GetPublishID(publisher.Handle(), id, 8, &need), NCL_SUCCESS);
    EXPECT_STREQ(id, "ID-0018");
}

TEST(PublishID, AnEmptyIdFits)
{
    FakePublisher publisher({Done(), Done()});
    char id[2] = "x";
    DWORD need = 7;
    EXPECT_EQ(GetPublishID(publisher.Handle(), id, 0, &need), NCL_ERR_BUF_SIZE);
    EXPECT_EQ(need, 1U);
    EXPECT_EQ(GetPublishID(publisher.Handle(), id, 1, &need), NCL_SUCCESS);
    EXPECT_STREQ(id, "");
}

TEST(PublishID, RefusesBadParameters)
{
    SyslogLines log;
    FakePublisher publisher;
    char id[8] = "";
    DWORD need = 7;
    EXPECT_EQ(GetPublishID(publisher.Handle(), nullptr, 8, &need), NCL_ERR_PARAMETER);
    EXPECT_EQ(need, 7U);
    EXPECT_EQ(GetPublishID(publisher.Handle(), id, 8, nullptr), NCL_ERR_PARAMETER);
    EXPECT_EQ(GetPublishID(0, id, 8, &need), NCL_ERR_PARAMETER);
    EXPECT_THAT(publisher.Requests(), IsEmpty());
    const std::string start = "<6>server , GetPublishID , Start";
    EXPECT_THAT(log.Take(), ElementsAre(start, COMMON_LINE, start, COMMON_LINE,
                                        "<6>(null) , GetPublishID , Start", COMMON_LINE));
}

TEST(PublishID, FailuresOfTheExchangeAreTraced)
{
    SyslogLines log;
    FakePublisher publisher({HttpResponse("", "500 Oh"), HttpResponse(ReplyItem("a") + ReplyItem("b"))});
    char id[8] = "";
    DWORD need = 7;
    EXPECT_EQ(GetPublishID(publisher.Handle(), id, 8, &need), NCL_ERR_SERVER_OTHER);
    EXPECT_EQ(need, 0U);
    EXPECT_EQ(log.Take().back(), "<3>\t## trace ## GetPublishID SendRequest() Server Other");
    EXPECT_EQ(GetPublishID(publisher.Handle(), id, 8, &need), NCL_ERR_INVALID_COMM_SPEC);
    EXPECT_EQ(log.Take().back(), "<3>\t## trace ## GetPublishID ParseCommReply() Invalid Comm Spec");
}
