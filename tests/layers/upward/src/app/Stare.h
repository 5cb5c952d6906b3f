#pragma once
struct Stare {};
