// What lives as long as the test process.
#pragma once

class ui_bridge;

// The one way into the interface thread, which runs the tests. A worker may still be on its way
// out of it when a test has ended.
ui_bridge& test_bridge();
