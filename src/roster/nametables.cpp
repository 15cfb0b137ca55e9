#include "roster/names.h"

#include <cstddef>

namespace grapplemont {

// clang-format off
constexpr std::array<std::string_view, kSurnames> Surnames = {
    "Abernathy", "Alabaster", "Alvarado", "Anvil", "Appleseed", "Armbuster", "Avalanche", "Axelrod",
    "Backdraft", "Badwater", "Bagshot", "Barnstorm", "Barracuda", "Bartleby", "Beauregard",
    "Bellwether", "Benedetto", "Birdsong", "Blackthorn", "Blizzard", "Bludgeon", "Boggs",
    "Bombardier", "Boomslang", "Boulder", "Bramble", "Brannigan", "Brickhouse", "Brimstone",
    "Broadside", "Buckshot", "Bulwark", "Bumblefoot", "Butterfist", "Buzzsaw", "Calamity",
    "Cannonball", "Caravaggio", "Carnage", "Carruthers", "Castellano", "Cavendish", "Chainlink",
    "Chestnut", "Chinlock", "Clobber", "Clodhopper", "Colossus", "Copperhead", "Corkscrew",
    "Cornwallis", "Crankshaft", "Cudgel", "Culpepper", "Cutthroat", "Cyclone", "Dalrymple",
    "Dangerson", "DeLuca", "Deadlift", "Dervish", "Doomsday", "Doubleday", "Downpour", "Dragonetti",
    "Dredge", "Dropkick", "Duckworth", "Dunderdale", "Dynamo", "Easterling", "Elderberry",
    "Eruption", "Everglade", "Falconer", "Farthing", "Figgis", "Firebrand", "Fishhook",
    "Fisticuffs", "Flapjack", "Flintlock", "Foghorn", "Footstool", "Forklift", "Foxglove",
    "Frostbite", "Gallagher", "Gangplank", "Gargoyle", "Gasket", "Gauntlet", "Giambalvo",
    "Gilhooly", "Goodnight", "Gooseberry", "Grandstand", "Granite", "Gravel", "Grimwood",
    "Grindstone", "Grizzly", "Groundhog", "Guillotine", "Gunderson", "Gutbuster", "Haggerty",
    "Hailstorm", "Halfacre", "Hammerlock", "Handcuff", "Hardcastle", "Hatchet", "Havoc",
    "Hawthorne", "Haymaker", "Headstrong", "Highwater", "Hobnail", "Honeycomb", "Hotfoot",
    "Howitzer", "Huckaby", "Humdinger", "Hustle", "Icepick", "Inferno", "Ironbark", "Ironjaw",
    "Ironsides", "Jabberwock", "Jackhammer", "Jawbreaker", "Jitterbug", "Joyride", "Juggernaut",
    "Kablooey", "Kaminski", "Kerosene", "Kettlewell", "Killjoy", "Kingfisher", "Kneebone",
    "Kringle", "LaFlame", "LaRue", "Landslide", "Larceny", "Lariat", "Leviathan", "Lightfoot",
    "Limelight", "Lockhart", "Lockjaw", "Longshadow", "Lovejoy", "Lowblow", "Lumberjack",
    "Magnifico", "Mahogany", "Malarkey", "Mandrake", "Marblehead", "Mastodon", "Matterhorn",
    "Mayhem", "McAllister", "McCracken", "McNasty", "McTavish", "Menace", "Midnight", "Millstone",
    "Minotaur", "Mischief", "Molasses", "Moongoose", "Moonshine", "Mothballs", "Mudflap",
    "Murgatroyd", "Muttonchop", "Nettles", "Nightshade", "Ninepin", "Nosebleed", "Novak",
    "Nutcracker", "O'Malley", "O'Rourke", "Oddfellow", "Okafor", "Oleander", "Onslaught",
    "Overcoat", "Overkill", "Papadakis", "Partridge", "Peabody", "Pepperpot", "Periwinkle",
    "Persimmon", "Pickering", "Piledriver", "Pitchfork", "Plimpton", "Plunder", "Powderkeg",
    "Powerhouse", "Pratfall", "Pumpkin", "Punchbowl", "Quagmire", "Quicksand", "Quigley", "Quimby",
    "Rackham", "Ragnarok", "Rampage", "Ramrod", "Ransom", "Rhubarb", "Ringpost", "Riptide",
    "Risin'", "Roadblock", "Robusto", "Rockslide", "Roughhouse", "Roustabout", "Rubble", "Ruckus",
    "Rumpus", "Rutabaga", "Rutherford", "Sassafras", "Sawdust", "Scarecrow", "Scorcher",
    "Scrimshaw", "Shackleton", "Shellshock", "Shillelagh", "Shipwreck", "Showboat", "Sidewinder",
    "Sledge", "Snowplow", "Somersault", "Splinter", "Squall", "Stampede", "Strongarm", "Sycamore",
    "Tailspin", "Tarantula", "Teakettle", "Tempest", "Thistle", "Tinderbox", "Toadstool", "Tombola",
    "Torpedo", "Trafalgar", "Trebuchet", "Tremendous", "Truncheon", "Tumbleweed", "Turnbuckle",
    "Underhill", "Undertow", "Uppercut", "Utterback", "Vandal", "Varnish", "Vasquez", "Velvet",
    "Vengeance", "Vesuvius", "Viscount", "Volcano", "Voltage", "Wadsworth", "Wagstaff", "Wallop",
    "Waterloo", "Whipsaw", "Whirlwind", "Whizzbang", "Wildcat", "Windmill", "Wolfsbane", "Wombat",
    "Woodchuck", "Xylophone", "Yardstick", "Zabriskie", "Zeppelin", "Zigzag", "Zimmerman",
};

constexpr std::array<std::string_view, kWorkerFirstNames> WorkerFirstNames = {
    "Aaron", "Alabama", "Alaskan", "Alonzo", "Ambrose", "Anton", "Archie", "Arlo", "Armando",
    "Atticus", "Barnaby", "Bartholomew", "Bashful", "Basil", "Bavarian", "Beau", "Benny", "Bermuda",
    "Bertrand", "Big Rig", "Blaine", "Boris", "Brick", "Brother", "Bruno", "Buford", "Bulldozer",
    "Butterfingers", "Caleb", "Calgary", "Captain", "Casper", "Cassius", "Chainsaw", "Chester",
    "Cincinnati", "Clarence", "Classified", "Cletus", "Cleveland", "Clyde", "Colonel", "Commander",
    "Concrete", "Constable", "Cornelius", "Cosmo", "Count", "Crazy Legs", "Cyril", "Dakota",
    "Danger Boy", "Dapper", "Darius", "Deacon", "Declan", "Delaware", "Delbert", "Desmond",
    "Devastator", "Devious", "Dexter", "Dimitri", "Dirty", "Disco", "Doctor", "Downtown", "Dublin",
    "Duncan", "Dwayne", "Easy Money", "Eduardo", "Egbert", "El Desastre", "El Paso", "Elmer",
    "Emmett", "Emperor", "Enrique", "Ezekiel", "Fabulous", "Fast Eddie", "Fearless", "Felix",
    "Ferdinand", "Fergus", "Finnegan", "Flamin'", "Floyd", "Flying", "Franco", "Fritz", "Gaston",
    "Gentleman", "Gideon", "Gigantic", "Giovanni", "Golden Boy", "Gregor", "Gunnar", "Half-Pint",
    "Hamish", "Hank", "Happy", "Harvey", "Heathcliff", "Hector", "Herschel", "Hiroshi", "Hoboken",
    "Honest", "Horatio", "Hot Sauce", "Hubert", "Humphrey", "Hungry", "Ichabod", "Idaho",
    "Ignatius", "Igor", "Ivan", "Jailbird", "Jasper", "Jebediah", "Jethro", "Judge", "Jules",
    "Kenji", "Kentucky", "King Size", "Klondike", "Knockout", "Lachlan", "Leopold", "Leroy",
    "Lightning", "Lonesome", "Long Tall", "Lonnie", "Lorenzo", "Loverboy", "Lucky", "Ludwig",
    "Luther", "Magnus", "Major", "Malachi", "Manitoba", "Meathook", "Memphis", "Merciless",
    "Mighty", "Mississippi", "Mister", "Montague", "Mordecai", "Mumbles", "Nasty", "Nathaniel",
    "Nebraska", "Neon", "Nervous", "Nigel", "Night Train", "Norbert", "Not Guilty", "Number One",
    "Octavio", "Olaf", "Old Man", "Omaha", "Oswald", "Otis", "Outrageous", "Ozark", "Pablo",
    "Painful", "Panama", "Percival", "Phineas", "Polite", "Pretty Boy", "Professor", "Pyro",
    "Quentin", "Quick Draw", "Radical", "Rafael", "Ragin'", "Rambunctious", "Reckless", "Reginald",
    "Remy", "Reverend", "Rhinestone", "Romeo", "Rude Boy", "Rufus", "Rupert", "Rusty", "Ruthless",
    "Sailor", "Salvatore", "Scary", "Sebastian", "Sergeant", "Seymour", "Shady", "Siberian",
    "Silas", "Silent", "Skinny", "Sleepy", "Slick", "Smilin'", "Sneaky", "Solomon", "Squeaky Clean",
    "Stavros", "Suave", "Sven", "Swingin'", "Takeshi", "Tennessee", "Terrible", "Thaddeus", "Tiny",
    "Titanic", "Tough Guy", "Tricky", "Turbo", "Twinkletoes", "Two-Ton", "Tyrone", "Ugly",
    "Ulysses", "Uncle", "Unlucky", "Vincenzo", "Vladimir", "Wendell", "Wicked", "Wilbur",
    "Wild Man", "Winston", "Wyoming", "Yukon", "Yuri", "Zachariah", "Zeke", "Zoltan",
    // Women from here on: kLastMaleWorkerFirstName names stand above.
    "Abigail", "Adelaide", "Agatha", "Allegra", "Amaryllis", "Anastasia", "Araminta", "Beatrix",
    "Bettina", "Brunhilda", "Calliope", "Carmelita", "Cassandra", "Charlotte", "Clementine",
    "Contessa", "Cordelia", "Daphne", "Delilah", "Drusilla", "Duchess", "Esmeralda", "Evangeline",
    "Francesca", "Genevieve", "Ginger", "Gwendolyn", "Hildegard", "Imogen", "Isadora", "Jezebel",
    "Juniper", "Kristabel", "Lady Luck", "Lavinia", "Lucinda", "Madam", "Magdalena", "Minerva",
    "Miss Demeanor", "Natasha", "Octavia", "Ophelia", "Penelope", "Philippa", "Queenie", "Rosalind",
    "Svetlana", "Tallulah", "Valentina", "Wilhelmina", "Zuleika",
};

constexpr std::array<std::string_view, kStaffFirstNames> StaffFirstNames = {
    "Adam", "Adrian", "Alan", "Albert", "Alec", "Alfred", "Alvin", "Andre", "Andrew", "Angus",
    "Anthony", "Arnold", "Arthur", "Aubrey", "August", "Barry", "Benjamin", "Bernard", "Boyd",
    "Brendan", "Brian", "Bryce", "Cameron", "Carl", "Cary", "Charles", "Christian", "Clark", "Clay",
    "Clifford", "Colin", "Conrad", "Craig", "Curtis", "Dale", "Damon", "Dan", "Daniel", "Darren",
    "Dave", "Dean", "Dennis", "Derek", "Don", "Douglas", "Dudley", "Dylan", "Eamon", "Ed", "Edgar",
    "Edmund", "Edwin", "Elliot", "Eric", "Ernest", "Eugene", "Evan", "Francis", "Frank", "Fred",
    "Gareth", "Gary", "Geoffrey", "George", "Gerald", "Gilbert", "Glen", "Gordon", "Graham",
    "Grant", "Greg", "Guy", "Harold", "Harry", "Henry", "Herbert", "Homer", "Howard", "Hugh", "Ian",
    "Irving", "Isaac", "Jack", "Jacob", "James", "Jeff", "Jerome", "Jim", "Joel", "John", "Jonah",
    "Joseph", "Julian", "Keith", "Ken", "Kevin", "Kirk", "Larry", "Lawrence", "Lee", "Leon",
    "Leslie", "Lewis", "Lionel", "Lloyd", "Louis", "Luke", "Malcolm", "Marcus", "Mark", "Martin",
    "Marvin", "Matthew", "Maurice", "Max", "Melvin", "Michael", "Miles", "Mitchell", "Morris",
    "Murray", "Nathan", "Neil", "Nicholas", "Norman", "Oliver", "Oscar", "Owen", "Patrick", "Paul",
    "Peter", "Philip", "Ralph", "Ray", "Richard", "Robert", "Roger", "Roland", "Ross", "Roy",
    "Russell", "Sam", "Scott", "Sidney", "Simon", "Stanley", "Stephen", "Stuart", "Terence",
    "Thomas", "Tim", "Todd", "Trevor", "Vernon", "Victor", "Wallace", "Walter", "Warren", "Wayne",
    "Wesley", "William",
    // Women from here on: kLastMaleStaffFirstName names stand above.
    "Alice", "Amanda", "Angela", "Barbara", "Brenda", "Carol", "Catherine", "Deborah", "Diane",
    "Dorothy", "Edith", "Elaine", "Fiona", "Gloria", "Helen", "Irene", "Janet", "Judith", "Karen",
    "Linda", "Margaret", "Marjorie", "Nancy", "Patricia", "Rita", "Ruth", "Sandra", "Sharon",
    "Susan", "Theresa", "Wanda",
};

constexpr std::array<FinisherMove, kFinisherMoves> FinisherMoves = {{
    {'B', FinisherType::Impact, "Big Punch"},
    {'B', FinisherType::Impact, "Falling Powerbomb"},
    {'B', FinisherType::Impact, "Running Lariat"},
    {'B', FinisherType::Impact, "Size Fourteen Boot"},
    {'B', FinisherType::Impact, "Sidewalk Slam"},
    {'B', FinisherType::Impact, "Running Powerslam"},
    {'B', FinisherType::Impact, "Press Slam"},
    {'B', FinisherType::Impact, "Full Nelson Slam"},
    {'B', FinisherType::Impact, "Standing Piledriver"},
    {'B', FinisherType::Impact, "Discus Clothesline"},
    {'B', FinisherType::Impact, "Swinging Chokebomb"},
    {'B', FinisherType::Impact, "Shoulderbreaker"},
    {'B', FinisherType::Impact, "Corner Avalanche"},
    {'B', FinisherType::Impact, "Spinning Backfist"},
    {'B', FinisherType::Impact, "Short-Arm Headbutt"},
    {'B', FinisherType::Impact, "Last Orders Lariat"},
    {'B', FinisherType::Submission, "Bearhug"},
    {'B', FinisherType::Submission, "Iron Claw"},
    {'B', FinisherType::Submission, "Overhead Backbreaker"},
    {'B', FinisherType::TopRope, "Diving Headbutt"},
    {'B', FinisherType::TopRope, "Top Rope Axe Handle"},
    {'B', FinisherType::Ground, "Running Big Splash"},
    {'B', FinisherType::Ground, "Knee Drop"},
    {'B', FinisherType::Ground, "Falling Piano"},
    {'T', FinisherType::Impact, "German Suplex"},
    {'T', FinisherType::Impact, "Bridging Dragon Suplex"},
    {'T', FinisherType::Impact, "Perfect Bridge Suplex"},
    {'T', FinisherType::Impact, "Exploding Suplex"},
    {'T', FinisherType::Impact, "Double Arm DDT"},
    {'T', FinisherType::Impact, "Brainbuster"},
    {'T', FinisherType::Impact, "Cradle Piledriver"},
    {'T', FinisherType::Impact, "Belly To Belly Suplex"},
    {'T', FinisherType::Impact, "Northern Suplex"},
    {'T', FinisherType::Submission, "Cross Armlock"},
    {'T', FinisherType::Submission, "Figure Four Leglock"},
    {'T', FinisherType::Submission, "Boston Crab"},
    {'T', FinisherType::Submission, "Scorpion Knot"},
    {'T', FinisherType::Submission, "Ankle Twist"},
    {'T', FinisherType::Submission, "Dragon Sleeper"},
    {'T', FinisherType::Submission, "Cross Face Lock"},
    {'T', FinisherType::Submission, "Octopus Stretch"},
    {'T', FinisherType::Submission, "Accountant's Hold"},
    {'T', FinisherType::TopRope, "Top Rope Superplex"},
    {'T', FinisherType::Ground, "Knee To The Kneecap"},
    {'S', FinisherType::Impact, "Jumping DDT"},
    {'S', FinisherType::Impact, "Spinning Heel Kick"},
    {'S', FinisherType::Impact, "Running Cutter"},
    {'S', FinisherType::Impact, "Whirling Headscissors"},
    {'S', FinisherType::Impact, "Handspring Elbow"},
    {'S', FinisherType::Impact, "Rolling Thunderkick"},
    {'S', FinisherType::Impact, "Step-Up Knee"},
    {'S', FinisherType::Submission, "Flying Armbar"},
    {'S', FinisherType::Submission, "Tarantula Stretch"},
    {'S', FinisherType::TopRope, "Frog Splash"},
    {'S', FinisherType::TopRope, "Lion Sault"},
    {'S', FinisherType::TopRope, "Moonsault"},
    {'S', FinisherType::TopRope, "Corkscrew Moonsault"},
    {'S', FinisherType::TopRope, "Shooting Star"},
    {'S', FinisherType::TopRope, "Missile Dropkick"},
    {'S', FinisherType::TopRope, "Somersault Legdrop"},
    {'S', FinisherType::TopRope, "Swan Dive"},
    {'S', FinisherType::TopRope, "Leap Of Poor Judgement"},
    {'S', FinisherType::Ground, "Standing Moonsault"},
    {'S', FinisherType::Ground, "Slingshot Senton"},
}};
// clang-format on

namespace {

constexpr std::size_t kNameWidth = 25;
constexpr std::size_t kShortNameWidth = 10;
constexpr std::size_t kMoveWidth = 25;

constexpr std::string_view TextOf(std::string_view name) {
  return name;
}
constexpr std::string_view TextOf(const FinisherMove& move) {
  return move.Name;
}

// A table that is a row short ends in an empty text, so the same test finds a wrong count.
template <typename Table>
consteval bool AreFilledAndDistinct(const Table& table) {
  for (std::size_t i = 0; i < table.size(); ++i) {
    if (TextOf(table[i]).empty()) return false;
    for (std::size_t j = 0; j < i; ++j) {
      if (TextOf(table[i]) == TextOf(table[j])) return false;
    }
  }
  return true;
}

template <typename Table>
consteval std::size_t Widest(const Table& table) {
  std::size_t widest = 0;
  for (const auto& row : table) {
    if (TextOf(row).size() > widest) widest = TextOf(row).size();
  }
  return widest;
}

consteval bool AreGroupedByKind() {
  constexpr std::string_view kOrder = "BTS";
  std::size_t group = 0;
  for (const FinisherMove& move : FinisherMoves) {
    while (group < kOrder.size() && kOrder[group] != move.Kind) ++group;
  }
  return group == kOrder.size() - 1 && FinisherMoves[0].Kind == 'B';
}

static_assert(AreFilledAndDistinct(Surnames));
static_assert(AreFilledAndDistinct(WorkerFirstNames));
static_assert(AreFilledAndDistinct(StaffFirstNames));
static_assert(AreFilledAndDistinct(FinisherMoves));
static_assert(Widest(Surnames) <= kShortNameWidth);
static_assert(Widest(WorkerFirstNames) + 1 + Widest(Surnames) <= kNameWidth);
static_assert(Widest(StaffFirstNames) + 1 + Widest(Surnames) <= kNameWidth);
static_assert(Widest(FinisherMoves) <= kMoveWidth);
static_assert(AreGroupedByKind());
static_assert(WorkerFirstNames[kLastMaleWorkerFirstName] == "Abigail");
static_assert(StaffFirstNames[kLastMaleStaffFirstName] == "Alice");

}  // namespace
}  // namespace grapplemont
