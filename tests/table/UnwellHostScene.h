#pragma once

#include <functional>
#include <memory>
#include <set>
#include <span>
#include <string>

#include "TableFixture.h"

/// A filled table that a step treats while its host does something else than it should.
class Scene : public TableFixture {
public:
    using TableFixture::body;
    using TableFixture::clickHeader;
    using TableFixture::doubleClick;
    using TableFixture::handler;
    using TableFixture::header;
    using TableFixture::headerOrder;
    using TableFixture::Host;
    using TableFixture::host;
    using TableFixture::key;
    using TableFixture::moveOnHeader;
    using TableFixture::moveTo;
    using TableFixture::paint;
    using TableFixture::press;
    using TableFixture::pressHeader;
    using TableFixture::release;
    using TableFixture::releaseHeader;
    using TableFixture::scrollTo;
    using TableFixture::sizeBody;
    using TableFixture::table;

    explicit Scene(std::shared_ptr<Host> window);

    void TestBody() override {}

    void notifyHeader(UINT code, int id, int width) const;
    /// The four columns if there are others, and rows 1 to 20 if there are but a few.
    void refill();
    /// What must hold of any table, whatever its host has done; empty if it does.
    std::string complaint();
};

/// One thing that can happen to a table.
struct Step {
    const char* name;
    std::function<void(Scene&)> run;
};

/// Together they cause each callback that the table makes.
std::span<const Step> tableSteps();

/// Runs a step; what the host throws ("the host is unwell") may come back from an operation that called it.
void runStep(const Step& step, Scene& scene);

/// What a well host is called with during the step.
const std::set<std::string>& callbacksOf(const Step& step);
/// The same of all steps, without what depends on where the real cursor is.
const std::set<std::string>& allCallbacks();
