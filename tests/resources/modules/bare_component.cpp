// Links the resources and refers to none of them.
extern "C" int BareComponent() {
  return 0;
}
