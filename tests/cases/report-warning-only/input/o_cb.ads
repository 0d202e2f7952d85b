package demo_callbacks is
end demo_callbacks;
