module m
object f : XmForm { };
end module;
