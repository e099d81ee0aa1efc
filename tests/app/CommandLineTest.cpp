#include <gtest/gtest.h>

#include "app/CommandLine.h"

namespace fidaleon::app::CommandLineTest {

TEST(CommandLine, understandsItsOptions) {
  using Task = CommandLine::Task;
  EXPECT_EQ(CommandLine::parse({}).task, Task::Desktop);
  EXPECT_EQ(CommandLine::parse({"--datos", "/a b"}).path, "/a b");
  EXPECT_EQ(CommandLine::parse({"/a=b/parroquia.fidaleon"}).path, "/a=b");
  EXPECT_EQ(CommandLine::parse({"--demo=/x"}).task, Task::Demo);
  EXPECT_EQ(CommandLine::parse({"--demo=/x"}).path, "/x");
  EXPECT_EQ(CommandLine::parse({"--pictures", "/x"}).task, Task::Pictures);
  EXPECT_EQ(CommandLine::parse({"--tabla", "x.dbf", "--codigos=437"}).codePage, "437");
  EXPECT_EQ(CommandLine::parse({"--import", "x.txt"}).task, Task::Import);
  EXPECT_EQ(CommandLine::parse({"--help"}).task, Task::Help);
}

TEST(CommandLine, saysWhatIsWrong) {
  using Task = CommandLine::Task;
  EXPECT_EQ(CommandLine::parse({"--deom", "x"}).complaint, "Opción desconocida: --deom");
  EXPECT_EQ(CommandLine::parse({"suelto"}).task, Task::Wrong);
  EXPECT_EQ(CommandLine::parse({"--demo"}).complaint, "La opción --demo necesita una carpeta.");
  EXPECT_EQ(CommandLine::parse({"--codigos", "850"}).task, Task::Wrong);
  EXPECT_EQ(CommandLine::parse({"--demo="}).task, Task::Wrong);
  EXPECT_EQ(CommandLine::parse({"--demo", "a", "--datos", "b"}).task, Task::Wrong);
  EXPECT_EQ(CommandLine::parse({"--datos", "Bu\xF1uel"}).task, Task::Wrong);
  for (const std::vector<std::string>& alone : std::vector<std::vector<std::string>>{
           {"--trasladar", "x", "--a", "y", "--usuario", "ana"},
           {"--trasladar", "x", "--a", "y", "--nueva", "San Blas"},
           {"--servidor", "x", "--base", "s/b", "--usuario", "ana", "--a", "y"},
           {"--servidor", "x", "--base", "s/b", "--usuario", "ana", "--poblacion", "Ávila"}})
    EXPECT_EQ(CommandLine::parse(alone).task, Task::Wrong) << alone[alone.size() - 2];
}

}  // namespace fidaleon::app::CommandLineTest
