object f : XmForm { };
